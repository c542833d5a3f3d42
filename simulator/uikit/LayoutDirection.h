// Which way the interface runs.
#pragma once

#include "objc/Ownership.h"

namespace sim {

// The interface's, by the phone's language.
bool interfaceIsRightToLeft();
// The view's own: its semantic content attribute may force either.
bool viewIsRightToLeft(objc::Object view);

}  // namespace sim
