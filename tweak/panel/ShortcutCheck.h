// A shortcut that cannot run is not left chosen.
#pragma once

#include "platform/UIKit.h"

// When the shortcut runner is missing, or has no shortcut of that name, tells the user so, offers
// a way out, and unchecks the box, whatever the answer.
void checkShortcut(UIControl box, NSString name);
