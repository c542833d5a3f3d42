#include "simulator/uikit/nib/Decoding.h"
#include "simulator/uikit/nib/NibCoder.h"
#include "simulator/uikit/views/UIImageView.h"

namespace sim {
namespace {

using objc::Object;

Object initWithCoder(Object self, Object source) {
  const Object made =
      objc::sendSuper<Object, "initWithCoder:">(self.get(), UIImageView::cls(), source);
  if (made) objc::send<void, "setImage:">(made, NibCoder(source).object("UIImage"));
  return made;
}

}  // namespace

void addImageViewDecoding() {
  addInitWithCoder<&initWithCoder>("UIImageView", "no highlighted image");
}

}  // namespace sim
