// A constraint as data: first attribute = multiplier × second attribute + constant.
#pragma once

#include "objc/Class.h"

namespace sim {

struct NSLayoutConstraint : objc::Implementation<NSLayoutConstraint> {
  objc::Weak<objc::Object> firstItem;
  objc::Weak<objc::Object> secondItem;    // nil: the constant alone
  objc::Strong<objc::Object> identifier;  // NSString
  long firstAttribute = 0;
  long secondAttribute = 0;
  long relation = 0;  // -1 at most, 0 equal, 1 at least
  double multiplier = 1;
  double constant = 0;    // points
  float priority = 1000;  // required
  bool active = false;

  static objc::Object make(id cls, objc::Object first, long firstAttribute, long relation,
                           objc::Object second, long secondAttribute, double multiplier,
                           double constant);

  static void registerClass();
};

}  // namespace sim
