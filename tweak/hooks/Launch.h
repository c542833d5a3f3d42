// What happens when the host has finished launching.
#pragma once

#include "objc/Hook.h"
#include "platform/SpringBoard.h"

// SpringBoard applicationDidFinishLaunching:
void applicationDidFinishLaunching(objc::Original<void(SpringBoard, objc::Object)> original,
                                   SpringBoard self, objc::Object application);
