#include "tweak/support/Log.h"

LogLine& LogLine::operator<<(const char* text) {
  text_.appendString(NSString::string(text));
  return *this;
}

LogLine& LogLine::operator<<(objc::Object object) {
  if (!object) return *this << "(null)";
  text_.appendString(objc::as<NSObject>(object).description());
  return *this;
}

LogLine& LogLine::operator<<(const void* address) {
  text_.appendString(NSString::stringWithFormat("%p"_ns, address));
  return *this;
}

LogLine& LogLine::operator<<(double number) {
  text_.appendString(NSString::stringWithFormat("%g"_ns, number));
  return *this;
}

void LogLine::write() const {
  NSLog(text_);
}
