// Cephei: a preferences domain with typed reads and writes and variables that follow it.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "objc/Block.h"
#include "objc/Class.h"
#include "simulator/cephei/Bindings.h"
#include "simulator/cephei/Conversion.h"
#include "simulator/cephei/PreferencesDomain.h"

extern "C" {
extern id HBPreferencesDidChangeNotification;  // NSString
}

namespace sim {

struct HBPreferences : objc::Implementation<HBPreferences> {
  using ChangeBlock = objc::Block<void()>;
  using KeyChangeBlock = objc::Block<void(objc::Object, objc::Object)>;  // key, new value

  // One object per identifier and process; it is never destroyed.
  objc::Object initWithIdentifier(objc::Object identifier);
  static objc::Object preferencesForIdentifier(objc::Object identifier);
  // nil as long as nobody in this process has asked for the domain.
  static objc::Object known(const std::string& identifier);
  // Another process says that it has changed the domain: the library reads it again when the main
  // queue comes to it. Nothing happens when nobody in this process listens for that domain.
  static void domainDidChangeElsewhere(const std::string& identifier);

  // The keys that this process has read, bound or given a default; none when it has not opened the
  // domain.
  static std::vector<std::string> requestedKeys(const std::string& identifier);

  objc::Object identifier();
  objc::Object defaults() { return domain->defaults(); }
  objc::Object dictionaryRepresentation() { return domain->stored(); }

  // Later changes are written to `address` as long as the process lives.
  template <class T>
  void bind(T* address, T otherwise, objc::Object key);
  void bindObject(id* address, objc::Object otherwise, objc::Object key);
  void registerDefaults(objc::Object values);

  // The stored value, else the registered default, else (in the second form) `otherwise`.
  template <class T>
  T read(objc::Object key);
  template <class T>
  T readOr(objc::Object key, T otherwise);
  objc::Object objectForKey(objc::Object key);
  objc::Object objectForKey_default(objc::Object key, objc::Object otherwise);

  template <objc::FixedString Setter, class T>
  void write(T value, objc::Object key);
  void setObject_forKey(objc::Object value, objc::Object key);  // nil removes
  void removeObjectForKey(objc::Object key);
  void removeAllObjects();

  // Runs the block once at once.
  void registerPreferenceChangeBlock(ChangeBlock block);
  void registerPreferenceChangeBlockForKey_block(objc::Object key, KeyChangeBlock block);

  static void registerClass();

 private:
  struct KeyObserver {
    std::string key;
    objc::Strong<KeyChangeBlock> block;
    objc::Strong<objc::Object> seen;  // the value that the block was last told
  };

  void addBinding(objc::Object key, Bindings::Address address, objc::Object otherwise);
  void store(objc::Object value, objc::Object key, const std::string& message);
  void didChange();
  void notifyKeyObservers();

  std::unique_ptr<PreferencesDomain> domain;
  Bindings bindings;
  std::vector<KeyObserver> keyObservers;
  std::vector<objc::Strong<ChangeBlock>> observers;
};

}  // namespace sim
