#include "simulator/springboard/CCUICAPackageDescription.h"

#include "simulator/StandIn.h"

namespace sim {

objc::Object CCUICAPackageDescription::initWithPackageName_inBundle(objc::Object name,
                                                                    objc::Object where) {
  packageName = objc::adopt(objc::send<objc::Object, "copy">(name));
  bundle = objc::retain(where);
  return objc::Object(self());
}

void CCUICAPackageDescription::registerClass() {
  StandIn<CCUICAPackageDescription>("ControlCenterUIKit", "CCUICAPackageDescription", "NSObject")
      .method<"initWithPackageName:inBundle:",
              &CCUICAPackageDescription::initWithPackageName_inBundle>()
      .readonlyProperty<"packageName", &CCUICAPackageDescription::packageName>()
      .readonlyProperty<"bundle", &CCUICAPackageDescription::bundle>()
      .finish();
}

}  // namespace sim
