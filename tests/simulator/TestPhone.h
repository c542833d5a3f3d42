// A phone for one test, whose files nobody writes.
#pragma once

#include <gtest/gtest.h>

#include "simulator/machine/Phone.h"

namespace sim {

class MachineTest : public testing::Test {
 protected:
  Phone phone{"/nonexistent"};
};

}  // namespace sim
