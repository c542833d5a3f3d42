#include "simulator/controlcenter/CCUICAPackageDescription.h"

#include "simulator/foundation/Kind.h"
#include "simulator/foundation/NSBundle.h"
#include "simulator/foundation/Values.h"
#include "simulator/machine/Journal.h"
#include "simulator/machine/Phone.h"
#include "simulator/standin/StandIn.h"

namespace sim {
namespace {

using objc::Object;

Object descriptionForPackage(id cls, Object name, Object bundle) {
  return autorelease(objc::adopt(objc::send<Object, "initWithPackageName:inBundle:">(
      objc_alloc(reinterpret_cast<Class>(cls)), name, bundle)));
}

// What Control Center adds to CAPackage. A package that cannot be read is logged.
Object packageFromDescription(Object description) {
  const Object url = objc::send<Object, "packageURL">(description);
  if (!url) return nullptr;
  id error = nullptr;
  const Object package = objc::send<Object, "packageWithContentsOfURL:type:options:error:">(
      objc_getClass("CAPackage"), url, string("com.apple.coreanimation-bundle"), Object(), &error);
  if (error != nullptr)
    Phone::current().journal.record(
        "log " + sim::quoted(text(objc::send<Object, "localizedDescription">(error))));
  return package;
}

}  // namespace

Object CCUICAPackageDescription::initWithPackageName_inBundle(Object name, Object where) {
  packageName = objc::adopt(objc::send<Object, "copy">(name));
  bundle = objc::retain(where);
  return Object(self());
}

Object CCUICAPackageDescription::packageURL() const {
  if (!isA<NSBundle>(bundle)) return nullptr;
  return objc::send<Object, "URLForResource:withExtension:">(bundle.get(), packageName.get(),
                                                             string("ca"));
}

void CCUICAPackageDescription::registerClass() {
  StandIn<CCUICAPackageDescription>("ControlCenterUIKit", "CCUICAPackageDescription", "NSObject")
      .factory<"descriptionForPackageNamed:inBundle:", &descriptionForPackage>()
      .method<"initWithPackageName:inBundle:",
              &CCUICAPackageDescription::initWithPackageName_inBundle>()
      .readonlyProperty<"packageName", &CCUICAPackageDescription::packageName>()
      .readonlyProperty<"bundle", &CCUICAPackageDescription::bundle>()
      .method<"packageURL", &CCUICAPackageDescription::packageURL>()
      .property<"flipsForRightToLeftLayoutDirection",
                &CCUICAPackageDescription::flipsForRightToLeftLayoutDirection>()
      .finish();
  const FidelityPage page("QuartzCore", "CAPackage");
  if (page.record('+', "ccuiPackageFromDescription:", {Grade::real, ""}))
    objc::addClassMethod<"ccuiPackageFromDescription:", &packageFromDescription>(
        objc_getClass("CAPackage"));
}

}  // namespace sim
