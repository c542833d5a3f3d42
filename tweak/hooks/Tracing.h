// Hooks that only write a line to the system log.
#pragma once

#include "objc/Hook.h"
#include "platform/ControlCenterUIKit.h"

// CCUICAPackageDescription initWithPackageName:inBundle:
CCUICAPackageDescription tracePackageDescription(
    objc::Original<CCUICAPackageDescription(CCUICAPackageDescription, NSString, NSBundle)> original,
    CCUICAPackageDescription self, NSString name, NSBundle bundle);
