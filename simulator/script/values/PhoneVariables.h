// Variables that scripts find without `let`: what is on the phone's screen now.
#pragma once

#include <functional>
#include <string>

#include "objc/Object.h"

namespace sim {

// Asked each time the script names the variable; nil when there is nothing of the kind just now.
// Added once a phone.
void addPhoneVariable(const std::string& name, std::function<objc::Object()> current);
bool isPhoneVariable(const std::string& name);
// nil also for a name that nobody has added.
objc::Object phoneVariable(const std::string& name);

}  // namespace sim
