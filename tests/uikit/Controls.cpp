#include "objc/Class.h"
#include "tests/uikit/UIKitTest.h"

namespace sim {
namespace {

std::vector<std::string> calls;

struct Receiver : objc::Implementation<Receiver> {
  void plain() { calls.push_back("plain"); }
  void withSender(Object sender) {
    calls.push_back(std::string("sender ") + object_getClassName(sender.get()));
  }
  void withEvent(Object, Object) { calls.push_back("event"); }
  static void registerClass() {
    objc::ClassBuilder<Receiver>("ActionReceiver", "UIView")
        .method<"plain", &Receiver::plain>()
        .method<"withSender:", &Receiver::withSender>()
        .method<"withSender:event:", &Receiver::withEvent>()
        .finish();
  }
};

constexpr unsigned long touchUpInside = 64;
using Calls = std::vector<std::string>;

class Controls : public UIKitTest {
 protected:
  Controls() {
    if (cls("ActionReceiver") == nullptr) Receiver::registerClass();
    calls.clear();
  }
  static void target(Object control, Object target, const char* action,
                     unsigned long events = touchUpInside) {
    send<void, "addTarget:action:forControlEvents:">(control, target, sel_registerName(action),
                                                     events);
  }
  static void touch(Object control) {
    send<void, "sendActionsForControlEvents:">(control, touchUpInside);
  }
};

TEST_F(Controls, SendTheirActionsInOrder) {
  const auto control = make("UIControl"), receiver = make("ActionReceiver");
  target(control, receiver, "withSender:");
  target(control, receiver, "plain");
  target(control, receiver, "withSender:event:");
  touch(control);
  EXPECT_EQ(calls, (Calls{"sender UIControl", "plain", "event"}));
}

TEST_F(Controls, TheSameActionIsSentOnce) {
  const auto control = make("UIControl"), receiver = make("ActionReceiver");
  target(control, receiver, "plain");
  target(control, receiver, "plain", 1);
  touch(control);
  EXPECT_EQ(calls, Calls{"plain"});
  EXPECT_EQ((send<unsigned long, "allControlEvents">(control.get())), touchUpInside | 1);
  const auto names = [&](unsigned long event) {
    return send<Object, "actionsForTarget:forControlEvent:">(control.get(), receiver.get(), event);
  };
  EXPECT_EQ(text(send<Object, "firstObject">(names(1))), "plain");
  EXPECT_FALSE(names(2));
}

TEST_F(Controls, ActionsCanBeTakenBack) {
  const auto control = make("UIControl"), receiver = make("ActionReceiver");
  target(control, receiver, "plain");
  target(control, receiver, "withSender:");
  send<void, "removeTarget:action:forControlEvents:">(control.get(), receiver.get(),
                                                      sel_registerName("plain"), touchUpInside);
  touch(control);
  EXPECT_EQ(calls, Calls{"sender UIControl"});
  send<void, "removeTarget:action:forControlEvents:">(control.get(), nullptr, SEL(nullptr), ~0UL);
  touch(control);
  EXPECT_EQ(calls.size(), 1U);
}

TEST_F(Controls, DoNotKeepTheirTargets) {
  const auto control = make("UIControl");
  target(control, make("ActionReceiver").get(), "plain");
  touch(control);
  EXPECT_TRUE(calls.empty());
}

TEST_F(Controls, WithoutTargetTheNextResponderThatKnowsTheActionGetsIt) {
  const auto receiver = make("ActionReceiver"), between = make("UIView"),
             control = make("UIControl");
  add(receiver, between);
  add(between, control);
  target(control, nullptr, "plain");
  touch(control);
  EXPECT_EQ(calls, Calls{"plain"});
}

TEST_F(Controls, ButtonsShowWhatBelongsToTheirState) {
  const Object button = send<Object, "buttonWithType:">(cls("UIButton"), 1L);
  send<void, "setTitle:forState:">(button, string("Back"), 0UL);
  send<void, "setTitle:forState:">(button, string("Chosen"), 4UL);
  const Object label = send<Object, "titleLabel">(button);
  EXPECT_EQ(text(send<Object, "text">(label)), "Back");
  send<void, "setSelected:">(button, true);
  EXPECT_EQ(text(send<Object, "text">(label)), "Chosen");
  EXPECT_EQ(text(send<Object, "currentTitle">(button)), "Chosen");
  EXPECT_EQ(text(send<Object, "titleForState:">(button, 0UL)), "Back");
  const Object white = send<Object, "whiteColor">(cls("UIColor"));
  send<void, "setTintColor:">(button, white);
  EXPECT_EQ((send<Object, "textColor">(label)), white);
  EXPECT_EQ((send<unsigned long, "state">(button)), 4UL);
}

TEST_F(Controls, ButtonsFallBackOnTheNormalState) {
  const Object button = send<Object, "buttonWithType:">(cls("UIButton"), 0L);
  send<void, "setTitle:forState:">(button, string("Back"), 0UL);
  send<void, "setHighlighted:">(button, true);
  EXPECT_EQ(text(send<Object, "currentTitle">(button)), "Back");
  EXPECT_FALSE((send<Object, "imageForState:">(button, 0UL)));
}

TEST_F(Controls, ButtonsKeepTheirContentInTheMiddle) {
  const Object button = send<Object, "buttonWithType:">(cls("UIButton"), 0L);
  send<void, "setTitle:forState:">(button, string("Back"), 0UL);
  send<void, "setFrame:">(button, rect(0, 0, 100, 50));
  send<void, "layoutIfNeeded">(button);
  const CGRect title = frameOf(send<Object, "titleLabel">(button));
  EXPECT_GT(title.size.width, 20);
  EXPECT_DOUBLE_EQ(title.origin.x + title.size.width / 2, 50);
  EXPECT_DOUBLE_EQ(title.origin.y + title.size.height / 2, 25);
}

TEST_F(Controls, TouchesFindTheFrontmostViewThatTakesThem) {
  const auto root = make("UIView", rect(0, 0, 100, 100));
  const auto back = make("UIView", rect(0, 0, 50, 50)), front = make("UIView", rect(0, 0, 50, 50));
  add(root, back);
  add(root, front);
  const auto hit = [&] {
    return send<Object, "hitTest:withEvent:">(root.get(), CGPoint{25, 25}, nullptr);
  };
  EXPECT_EQ(hit(), front.get());
  send<void, "setAlpha:">(front.get(), 0.0);
  EXPECT_EQ(hit(), back.get());
  send<void, "setUserInteractionEnabled:">(back.get(), false);
  EXPECT_EQ(hit(), root.get());
  send<void, "setHidden:">(root.get(), true);
  EXPECT_FALSE(hit());
}

}  // namespace
}  // namespace sim
