// The extension's lines in the system log.
#pragma once

#include "platform/Foundation.h"

// A line put together from parts: text, objects (their descriptions, "(null)" for nil), addresses
// of objects, and numbers.
class LogLine {
 public:
  LogLine& operator<<(const char* text);
  LogLine& operator<<(objc::Object object);
  LogLine& operator<<(const void* address);  // as "%p"
  LogLine& operator<<(double number);        // as "%g"
  void write() const;

 private:
  NSMutableString text_ = NSMutableString::string();
};

// One line for a call of a hooked method, "-[<MRUEmbeddingView: 0x1234> showViewController]": the
// class that was hooked, the receiver's address, and the parts of the message.
template <class... Parts>
void logCall(const char* className, objc::Object receiver, const Parts&... message) {
  LogLine line;
  line << "-[<" << className << ": " << static_cast<const void*>(receiver.get()) << "> ";
  ((line << message), ...);
  (line << "]").write();
}
