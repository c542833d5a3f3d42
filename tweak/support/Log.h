// The extension's lines in the system log.
#pragma once

#include "platform/Foundation.h"

// A line put together from parts: text, objects (their descriptions, "(null)" for nil) addresses
// of objects, and numbers.
class LogLine {
 public:
  LogLine& operator<<(const char* text);
  LogLine& operator<<(objc::Object object);
  LogLine& operator<<(const void* address);
  LogLine& operator<<(double number);  // as "%g"
  void write() const;

 private:
  NSMutableString text_ = NSMutableString::string();
};
