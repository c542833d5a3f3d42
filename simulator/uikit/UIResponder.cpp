#include "simulator/uikit/UIResponder.h"

#include "simulator/StandIn.h"

namespace sim {
namespace {

objc::Object nextResponder(objc::Object) {
  return nullptr;
}

}  // namespace

void UIResponder::registerClass() {
  StandIn<UIResponder>("UIKit", "UIResponder", "NSObject")
      .method<"nextResponder", &nextResponder>()
      .finish();
}

}  // namespace sim
