#include "simulator/standin/StandIn.h"

#include "simulator/machine/Phone.h"

namespace sim {

void logStub(id receiver, SEL selector) {
  const char kind = object_isClass(receiver) ? '+' : '-';
  Phone::current().journal.record(std::string("stub ") + kind + '[' +
                                  object_getClassName(receiver) + ' ' + sel_getName(selector) +
                                  ']');
}

}  // namespace sim
