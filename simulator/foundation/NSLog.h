#pragma once

#include <cstdarg>

#include "objc/runtime.h"

extern "C" {
void NSLog(id format, ...);  // NSString*
void NSLogv(id format, std::va_list arguments);
}

namespace sim {

void recordLogFunctions();

}  // namespace sim
