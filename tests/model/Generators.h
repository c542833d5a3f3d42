// Random nights. Small ones first, and what fails shrinks towards few and plain commands.
#pragma once

#include <rapidcheck.h>

#include "tests/model/Commands.h"

namespace model {

rc::Gen<Night> nights();

}  // namespace model
