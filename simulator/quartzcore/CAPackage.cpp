#include "simulator/quartzcore/CAPackage.h"

#include "objc/Message.h"
#include "simulator/foundation/Values.h"
#include "simulator/quartzcore/caml/PackageFiles.h"
#include "simulator/standin/StandIn.h"

namespace sim {
namespace {

using objc::Object;

constexpr const char* folderType = "com.apple.coreanimation-bundle";
constexpr const char* documentType = "com.apple.coreanimation-xml";

caml::PackageContents contentsOf(const std::string& path, const std::string& type) {
  if (type == folderType) return caml::readPackageFolder(path);
  if (type == documentType) return caml::readPackageDocument(path);
  throw caml::PackageError("packages of the type " + type + " cannot be read");
}

Object errorSaying(const caml::PackageError& problem) {
  const Object info = dictionary({{string("NSLocalizedDescription"), string(problem.what())}});
  return objc::send<Object, "errorWithDomain:code:userInfo:">(
      objc_getClass("NSError"), string("CoreAnimationErrorDomain"), problem.code, info);
}

Object packageOf(caml::PackageContents contents) {
  auto made = CAPackage::make();
  CAPackage& package = CAPackage::of(made.get());
  package.rootLayer = std::move(contents.rootLayer);
  package.publishedObjectNames = std::move(contents.publishedObjectNames);
  package.geometryFlipped = contents.geometryFlipped;
  return autorelease(std::move(made));
}

}  // namespace

Object CAPackage::packageWithContentsOfURL(Object url, Object type, Object, id* error) {
  try {
    const Object path = objc::send<Object, "path">(url);
    return packageOf(contentsOf(text(path), text(type)));
  } catch (const caml::PackageError& problem) {
    if (error != nullptr) *error = errorSaying(problem).get();
    return nullptr;
  }
}

void CAPackage::registerClass() {
  StandIn<CAPackage>("QuartzCore", "CAPackage", "NSObject")
      .partialClassMethod<"packageWithContentsOfURL:type:options:error:",
                          &CAPackage::packageWithContentsOfURL>(
          "no archives, style documents and options; unknown classes are left out, not replaced")
      .readonlyProperty<"rootLayer", &CAPackage::rootLayer>()
      .readonlyProperty<"geometryFlipped", &CAPackage::geometryFlipped>()
      .readonlyProperty<"isGeometryFlipped", &CAPackage::geometryFlipped>()
      .readonlyProperty<"publishedObjectNames", &CAPackage::publishedObjectNames>()
      .finish();
}

}  // namespace sim
