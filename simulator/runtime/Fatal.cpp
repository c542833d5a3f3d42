#include "simulator/runtime/Fatal.h"

#include <cstdarg>
#include <cstdio>
#include <cstdlib>

namespace sim::runtime {

void fatal(const char* format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  // What the program had to say so far must not be lost behind the abort.
  std::fflush(stdout);
  std::fputs("objc: ", stderr);
  std::vfprintf(stderr, format, arguments);
  std::fputc('\n', stderr);
  va_end(arguments);
  std::abort();
}

void unrecognizedSelector(id receiver, SEL selector) {
  const bool isClass = object_isClass(receiver);
  fatal("%c[%s %s]: unrecognized selector sent to %s %p", isClass ? '+' : '-',
        object_getClassName(receiver), sel_getName(selector), isClass ? "class" : "instance",
        static_cast<void*>(receiver));
}

}  // namespace sim::runtime
