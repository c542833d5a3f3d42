// The system log is the journal.
#include "simulator/foundation/NSLog.h"

#include <cstdarg>

#include "simulator/foundation/NSString.h"
#include "simulator/foundation/Unicode.h"
#include "simulator/machine/Phone.h"
#include "simulator/runtime/Variadics.h"
#include "simulator/standin/Fidelity.h"

void NSLogv(id format, std::va_list arguments) {
  const std::u16string line = sim::formatted(objc::Object(format), arguments);
  sim::Phone::current().journal.record("log " + sim::quoted(sim::unicode::toUtf8(line)));
}

void NSLog(id format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  NSLogv(format, arguments);
  va_end(arguments);
}

namespace sim {

void recordLogFunctions() {
  recordFunction("Foundation", "NSLog", {Grade::real, ""});
  recordFunction("Foundation", "NSLogv", {Grade::real, ""});
  sim::runtime::addVariadicFunction(reinterpret_cast<void*>(&NSLog), &NSLogv);
}

}  // namespace sim
