#include "tweak/hooks/Tracing.h"

#include "tweak/support/Log.h"

CCUICAPackageDescription tracePackageDescription(
    objc::Original<CCUICAPackageDescription(CCUICAPackageDescription, NSString, NSBundle)> original,
    CCUICAPackageDescription self, NSString name, NSBundle bundle) {
  (LogLine() << "-[<CCUICAPackageDescription: " << static_cast<const void*>(self.get())
             << "> initWithPackageName:" << name << " inBundle:" << bundle << "]")
      .write();
  return original(self, name, bundle);
}
