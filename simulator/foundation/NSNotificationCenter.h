#pragma once

#include <memory>
#include <vector>

#include "objc/Block.h"
#include "objc/Class.h"

namespace sim {

using NotificationBlock = objc::Block<void(objc::Object)>;

// Somebody who wants to hear.
struct Observation {
  id address = nullptr;               // identity, also while the observer is being destroyed
  objc::Weak<objc::Object> observer;  // not retained
  objc::Strong<objc::Object> token;   // of an observation by block: the center's own
  objc::Strong<NotificationBlock> block;
  SEL selector = nullptr;
  objc::Strong<objc::Object> name;  // empty: any
  id object = nullptr;              // not retained; nullptr: any
  bool removed = false;

  bool wants(objc::Object postedName, objc::Object postedObject) const;
};

struct NSNotificationCenter : objc::Implementation<NSNotificationCenter> {
  std::vector<std::shared_ptr<Observation>> observations;  // in order of registration

  void addObserver(objc::Object observer, SEL selector, objc::Object name, objc::Object object);
  objc::Object addObserverForName(objc::Object name, objc::Object object, objc::Object queue,
                                  NotificationBlock block);
  void removeObserver(objc::Object observer);
  void removeObserverNamed(objc::Object observer, objc::Object name, objc::Object object);
  void postNotification(objc::Object notification);
  void postNotificationName(objc::Object name, objc::Object object);
  void postNotificationNameInfo(objc::Object name, objc::Object object, objc::Object userInfo);

  static void registerClass();
};

// The default one, as anybody in the host asks for it.
objc::Object notificationCenter();

}  // namespace sim
