// Arrays and dictionaries.
#pragma once

#include "platform/foundation/Value.h"

struct NSDictionary : objc::Object {
  using Object::Object;
  static NSDictionary dictionaryWithContentsOfFile(NSString path) {  // nil: not a dictionary
    return objc::send<NSDictionary, "dictionaryWithContentsOfFile:">(
        objc::classNamed<"NSDictionary">(), path);
  }
  objc::Object objectForKey(objc::Object key) const {
    return objc::send<objc::Object, "objectForKey:">(*this, key);
  }
  static NSDictionary dictionary() {
    return objc::send<NSDictionary, "dictionary">(objc::classNamed<"NSDictionary">());
  }
};

struct NSArray : objc::Object {
  using Object::Object;
  objc::Strong<NSArray> copy() const { return objc::adopt(objc::send<NSArray, "copy">(*this)); }
  unsigned long count() const { return objc::send<unsigned long, "count">(*this); }
  objc::Object objectAtIndex(unsigned long index) const {  // raises past the end
    return objc::send<objc::Object, "objectAtIndex:">(*this, index);
  }
  objc::Object firstObject() const {  // nil when empty
    return objc::send<objc::Object, "firstObject">(*this);
  }
  bool containsObject(objc::Object object) const {
    return objc::send<bool, "containsObject:">(*this, object);
  }
};

struct NSMutableArray : NSArray {
  using NSArray::NSArray;
  static NSMutableArray array() {
    return objc::send<NSMutableArray, "array">(objc::classNamed<"NSMutableArray">());
  }
  void addObject(objc::Object object) const { objc::send<void, "addObject:">(*this, object); }
  void addObjectsFromArray(NSArray objects) const {
    objc::send<void, "addObjectsFromArray:">(*this, objects);
  }
};

inline NSArray NSString::componentsSeparatedByString(NSString separator) const {
  return objc::send<NSArray, "componentsSeparatedByString:">(*this, separator);
}
