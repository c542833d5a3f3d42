// What people do, as lines of a phone script.
#pragma once

#include <string>

#include "tests/model/NightModel.h"

namespace model {

// Empty when the phone, as the model has it now, would refuse the command.
std::string commandText(const Action& action, const NightModel& now);

std::string secondsText(Nanoseconds duration);  // to the nanosecond
std::string exact(double value);

}  // namespace model
