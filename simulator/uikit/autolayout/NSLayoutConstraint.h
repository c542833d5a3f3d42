// A constraint: first attribute = multiplier × second attribute + constant.
#pragma once

#include <string>

#include "objc/Class.h"

namespace sim {

struct NSLayoutConstraint : objc::Implementation<NSLayoutConstraint> {
  objc::Weak<objc::Object> firstItem;
  objc::Weak<objc::Object> secondItem;    // nil: the constant alone
  objc::Weak<objc::Object> owner;         // the view that it was added to; nil: not in force
  objc::Strong<objc::Object> identifier;  // NSString
  long firstAttribute = 0;
  long secondAttribute = 0;
  long relation = 0;  // -1 at most, 0 equal, 1 at least
  double multiplier = 1;
  double constant = 0;            // points
  float priority = 1000;          // required
  unsigned long activation = 0;   // counts up as constraints come into force
  bool isReportedBroken = false;  // since it was changed last

  static objc::Object make(id cls, objc::Object first, long firstAttribute, long relation,
                           objc::Object second, long secondAttribute, double multiplier,
                           double constant);
  bool isActive() const { return bool(owner.load()); }
  void setConstant(double points);
  void setPriority(float value);
  std::string description() const;

  static void registerClass();

 private:
  void changed();
};

}  // namespace sim
