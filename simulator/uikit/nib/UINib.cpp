#include "simulator/uikit/nib/UINib.h"

#include "simulator/foundation/Kind.h"
#include "simulator/foundation/NSData.h"
#include "simulator/standin/StandIn.h"

namespace sim {
namespace {

using objc::Object;

Object nibOf(NibFile file) {
  objc::Strong<Object> made = UINib::make();
  UINib::of(made.get()).file = std::move(file);
  return autorelease(std::move(made));
}

Object nibWithNibName(Object name, Object bundle) {
  return nibOf(NibFile::named(name, bundle));
}

Object nibWithData(Object data, Object bundle) {
  const NSData* content = stateOf<NSData>(data);
  return nibOf({content == nullptr ? "" : content->content, "", objc::retain(bundle)});
}

Object loadNibNamed(Object bundle, Object name, Object owner, Object options) {
  return NibFile::named(name, bundle).instantiate(owner, options);
}

void awakeFromNib(Object) {}

constexpr const char* difference = "no accessibility configurations, no variations by size class";

}  // namespace

Object UINib::instantiate(Object owner, Object options) {
  return file.instantiate(owner, options);
}

void UINib::registerClass() {
  StandIn<UINib>("UIKit", "UINib", "NSObject")
      .classMethod<"nibWithNibName:bundle:", &nibWithNibName>()
      .classMethod<"nibWithData:bundle:", &nibWithData>()
      .partial<"instantiateWithOwner:options:", &UINib::instantiate>(difference)
      .finish();
  if (FidelityPage("UIKit", "NSBundle")
          .record('-', "loadNibNamed:owner:options:", {Grade::partial, difference}))
    objc::addMethod<"loadNibNamed:owner:options:", &loadNibNamed>(objc_getClass("NSBundle"));
  if (FidelityPage("UIKit", "NSObject").record('-', "awakeFromNib", {Grade::real, ""}))
    objc::addMethod<"awakeFromNib", &awakeFromNib>(objc_getClass("NSObject"));
}

}  // namespace sim
