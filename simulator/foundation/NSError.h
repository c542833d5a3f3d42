#pragma once

#include "objc/Class.h"

namespace sim {

struct NSError : objc::Implementation<NSError> {
  objc::Strong<objc::Object> domain;    // NSString
  objc::Strong<objc::Object> userInfo;  // NSDictionary, empty rather than nil
  long code = 0;

  objc::Object initWithDomain_code_userInfo(objc::Object where, long number, objc::Object info);
  objc::Object localizedDescription() const;
  objc::Object description() const;

  static void registerClass();
};

}  // namespace sim
