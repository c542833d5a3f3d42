#include "tweak/support/Log.h"

#include <charconv>
#include <cstdint>

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
  char digits[] = "0x0000000000000000";
  auto end = std::to_chars(digits + 2, digits + sizeof digits - 1,
                           reinterpret_cast<std::uintptr_t>(address), 16);
  *end.ptr = 0;
  return *this << static_cast<const char*>(digits);
}

LogLine& LogLine::operator<<(double number) {
  text_.appendString(NSString::stringWithFormat("%g"_ns, number));
  return *this;
}

void LogLine::write() const {
  NSLog(text_);
}
