#include "tweak/hooks/Tracing.h"

#include "tweak/support/Log.h"

CCUICAPackageDescription tracePackageDescription(
    objc::Original<CCUICAPackageDescription(CCUICAPackageDescription, NSString, NSBundle)> original,
    CCUICAPackageDescription self, NSString name, NSBundle bundle) {
  logCall("CCUICAPackageDescription", self, "initWithPackageName:", name, " inBundle:", bundle);
  return original(self, name, bundle);
}
