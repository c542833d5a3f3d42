#include "simulator/uikit/alerts/UIAlertAction.h"

#include "simulator/foundation/Kind.h"
#include "simulator/standin/StandIn.h"

namespace sim {

using objc::Object;

Object UIAlertAction::make(id cls, Object title, long style, Handler handler) {
  auto made = makeOf(cls);
  UIAlertAction& state = of(made.get());
  state.title = objc::adopt(objc::send<Object, "copy">(title));
  state.style = style;
  state.handler = objc::adopt(objc::send<Handler, "copy">(handler));
  return autorelease(std::move(made));
}

void UIAlertAction::registerClass() {
  StandIn<UIAlertAction>("UIKit", "UIAlertAction", "NSObject")
      .factory<"actionWithTitle:style:handler:", &UIAlertAction::make>()
      .readonlyProperty<"title", &UIAlertAction::title>()
      .readonlyProperty<"style", &UIAlertAction::style>()
      .flag<"enabled", "isEnabled", &UIAlertAction::enabled>()
      .finish();
}

}  // namespace sim
