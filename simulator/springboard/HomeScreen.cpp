#include "simulator/springboard/HomeScreen.h"

#include "objc/Message.h"
#include "objc/Ownership.h"

namespace sim {
namespace {

objc::Object homeScreen;  // owned, and never given up

}  // namespace

void showHomeScreen() {
  const Class windowClass = objc_getClass("UIWindow");
  const Class controllerClass = objc_getClass("UIViewController");
  if (windowClass == nullptr || controllerClass == nullptr) return;
  auto window = objc::adopt(objc::Object(objc_alloc_init(windowClass)));
  const auto root = objc::adopt(objc::Object(objc_alloc_init(controllerClass)));
  if (const Class viewClass = objc_getClass("SBHomeScreenView")) {
    const auto view = objc::adopt(objc::Object(objc_alloc_init(viewClass)));
    objc::send<void, "setView:">(root.get(), view.get());
  }
  objc::send<void, "setRootViewController:">(window.get(), root.get());
  objc::send<void, "makeKeyAndVisible">(window.get());
  homeScreen = window.detach();
}

}  // namespace sim
