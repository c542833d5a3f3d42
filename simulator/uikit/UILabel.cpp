#include "simulator/uikit/UILabel.h"

#include "simulator/StandIn.h"

namespace sim {

void UILabel::setText(objc::Object shown) {
  text = objc::adopt(objc::send<objc::Object, "copy">(shown));
}

void UILabel::registerClass() {
  StandIn<UILabel>("UIKit", "UILabel", "UIView")
      .readonlyProperty<"text", &UILabel::text>()
      .method<"setText:", &UILabel::setText>()
      .finish();
}

}  // namespace sim
