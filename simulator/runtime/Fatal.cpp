#include "simulator/runtime/Fatal.h"

#include <cstdarg>
#include <cstdio>
#include <cstdlib>

#include "simulator/runtime/ShownAddresses.h"

namespace sim::runtime {
namespace {

char message[2000] = "";

}  // namespace

const char* fatalMessage() {
  return message;
}

void fatal(const char* format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  // What the program had to say so far must not be lost behind the abort.
  std::fflush(stdout);
  std::vsnprintf(message, sizeof message, format, arguments);
  va_end(arguments);
  std::fprintf(stderr, "objc: %s\n", message);
  std::abort();
}

void unrecognizedSelector(id receiver, SEL selector) {
  const bool isClass = object_isClass(receiver);
  fatal("%c[%s %s]: unrecognized selector sent to %s 0x%zx", isClass ? '+' : '-',
        object_getClassName(receiver), sel_getName(selector), isClass ? "class" : "instance",
        shownAddress(receiver));
}

}  // namespace sim::runtime
