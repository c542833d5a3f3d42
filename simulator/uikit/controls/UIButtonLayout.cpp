// UIButton: where image and title stand.
#include <algorithm>

#include "objc/Message.h"
#include "simulator/uikit/controls/UIButton.h"
#include "simulator/uikit/views/UIView.h"

namespace sim {
namespace {

using objc::Object;

CGSize fitting(Object part, CGSize room) {
  const CGSize wanted = objc::send<CGSize, "intrinsicContentSize">(part);
  return {std::clamp(wanted.width, 0.0, std::max(room.width, 0.0)),
          std::clamp(wanted.height, 0.0, std::max(room.height, 0.0))};
}

void place(Object part, double x, CGSize size, CGSize room) {
  objc::send<void, "setFrame:">(part, CGRect{{x, (room.height - size.height) / 2}, size});
}

}  // namespace

void UIButton::layoutSubviews() {
  super<void, "layoutSubviews">();
  const CGSize room = UIView::of(self()).geometry().bounds.size;
  const CGSize image = imageView ? fitting(imageView, room) : CGSize();
  const CGSize title = label ? fitting(label, {room.width - image.width, room.height}) : CGSize();
  const double start = (room.width - image.width - title.width) / 2;
  if (imageView) place(imageView, start, image, room);
  if (label) place(label, start + image.width, title, room);
}

}  // namespace sim
