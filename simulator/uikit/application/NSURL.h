// Foundation's class, here with its only user: what the application is asked to open.
#pragma once

#include "objc/Class.h"

namespace sim {

struct NSURL : objc::Implementation<NSURL> {
  objc::Strong<objc::Object> absoluteString;  // NSString

  objc::Object initWithString(objc::Object text);  // nil for what is no URL
  objc::Object scheme() const;                     // nil without one
  objc::Object host() const;                       // nil without one
  objc::Object path() const;                       // without escapes; empty without one
  bool isFileURL() const;
  bool isEqual(objc::Object other) const;
  unsigned long hash() const;
  objc::Object description() const { return absoluteString; }

  static objc::Object URLWithString(id cls, objc::Object text);
  // Percent signs and what no URL may hold are escaped. nil for nil.
  static objc::Object fileURLWithPath(id cls, objc::Object path);
  static void registerClass();
};

}  // namespace sim
