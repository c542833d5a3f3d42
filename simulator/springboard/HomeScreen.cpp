#include "simulator/springboard/HomeScreen.h"

#include "objc/Message.h"
#include "objc/Ownership.h"
#include "simulator/machine/Phone.h"

namespace sim {
namespace {

struct HomeScreen {
  objc::Strong<objc::Object> window;
};

}  // namespace

void showHomeScreen() {
  const Class windowClass = objc_getClass("UIWindow");
  const Class controllerClass = objc_getClass("UIViewController");
  if (windowClass == nullptr || controllerClass == nullptr) return;
  const auto window = objc::adopt(objc::Object(objc_alloc_init(windowClass)));
  const auto root = objc::adopt(objc::Object(objc_alloc_init(controllerClass)));
  if (const Class viewClass = objc_getClass("SBHomeScreenView")) {
    const auto view = objc::adopt(objc::Object(objc_alloc_init(viewClass)));
    objc::send<void, "setView:">(root.get(), view.get());
  }
  objc::send<void, "setRootViewController:">(window.get(), root.get());
  objc::send<void, "makeKeyAndVisible">(window.get());
  Phone::current().state<HomeScreen>().window = window;
}

}  // namespace sim
