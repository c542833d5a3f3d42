// How a moved phone tells the view that is in front.
#include "simulator/uikit/touches/UIMotionEvent.h"
#include "tests/uikit/UIKitTest.h"

namespace sim {
namespace {

std::vector<std::string> movements;

struct MovedWindow : objc::Implementation<MovedWindow> {
  static void tell(const char* what, Object event) {
    movements.push_back(what + std::to_string(send<int, "shakeState">(event)));
  }
  void began(long, Object event) { tell("began ", event); }
  void ended(long, Object event) { tell("ended ", event); }
  void cancelled(long, Object event) { tell("cancelled ", event); }
  static void registerClass() {
    objc::ClassBuilder<MovedWindow>("MovedWindow", "UIWindow")
        .method<"motionBegan:withEvent:", &MovedWindow::began>()
        .method<"motionEnded:withEvent:", &MovedWindow::ended>()
        .method<"motionCancelled:withEvent:", &MovedWindow::cancelled>()
        .finish();
  }
};

class Motion : public UIKitTest {};

TEST_F(Motion, IsDeliveredToTheKeyWindowInEachOfItsStates) {
  MovedWindow::registerClass();
  const auto event = UIMotionEvent::make();
  UIMotionEvent::of(event.get()).enter(UIMotionEvent::began);
  EXPECT_TRUE(movements.empty());
  {
    const auto window = MovedWindow::make();
    send<void, "makeKeyAndVisible">(window.get());
    UIMotionEvent::of(event.get()).enter(UIMotionEvent::began);
    UIMotionEvent::of(event.get()).enter(UIMotionEvent::ended);
    UIMotionEvent::of(event.get()).enter(UIMotionEvent::cancelled);
    send<void, "setHidden:">(window.get(), true);
  }
  EXPECT_EQ(movements, (std::vector<std::string>{"began 0", "ended 1", "cancelled 2"}));
}

}  // namespace
}  // namespace sim
