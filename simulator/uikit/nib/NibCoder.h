// What an initWithCoder: reads, key by key.
#pragma once

#include "objc/Message.h"
#include "simulator/coregraphics/Geometry.h"
#include "simulator/foundation/Values.h"
#include "simulator/uikit/nib/EdgeInsets.h"

namespace sim {

class NibCoder {
 public:
  explicit NibCoder(objc::Object coder) : coder_(coder) {}

  bool has(const char* key) const {
    return objc::send<bool, "containsValueForKey:">(coder_, string(key));
  }
  objc::Object object(const char* key) const {
    return objc::send<objc::Object, "decodeObjectForKey:">(coder_, string(key));
  }
  bool flag(const char* key) const {
    return objc::send<bool, "decodeBoolForKey:">(coder_, string(key));
  }
  long integer(const char* key) const {
    return objc::send<long, "decodeIntegerForKey:">(coder_, string(key));
  }
  double number(const char* key) const {
    return objc::send<double, "decodeDoubleForKey:">(coder_, string(key));
  }
  CGRect rect(const char* key) const {
    return objc::send<CGRect, "decodeCGRectForKey:">(coder_, string(key));
  }
  CGPoint point(const char* key) const {
    return objc::send<CGPoint, "decodeCGPointForKey:">(coder_, string(key));
  }
  UIEdgeInsets insets(const char* key) const {
    return objc::send<UIEdgeInsets, "decodeUIEdgeInsetsForKey:">(coder_, string(key));
  }
  // Of an array; none for nil.
  std::vector<objc::Object> elements(const char* key) const {
    const objc::Object array = object(key);
    std::vector<objc::Object> found(objc::send<unsigned long, "count">(array));
    for (unsigned long i = 0; i < found.size(); ++i)
      found[i] = objc::send<objc::Object, "objectAtIndex:">(array, i);
    return found;
  }

 private:
  objc::Object coder_;
};

}  // namespace sim
