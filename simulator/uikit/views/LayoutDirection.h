// Which way the interface runs.
#pragma once

#include "objc/Ownership.h"

namespace sim {

// The interface's, by the phone's language.
bool interfaceIsRightToLeft();
// Of views with that semantic content attribute, which may force either.
bool isRightToLeftFor(long semanticContentAttribute);
// The view's own.
bool viewIsRightToLeft(objc::Object view);

}  // namespace sim
