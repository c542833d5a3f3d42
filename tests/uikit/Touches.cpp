// One road for touches: what a finger does to the view it comes down on, and where it cannot.
#include "objc/Class.h"
#include "simulator/uikit/controls/UIControl.h"
#include "simulator/uikit/controls/UISlider.h"
#include "simulator/uikit/pickers/UIDatePicker.h"
#include "simulator/uikit/touches/Finger.h"
#include "simulator/uikit/touches/Touch.h"
#include "simulator/uikit/views/ViewTree.h"
#include "tests/uikit/UIKitTest.h"

namespace sim {
namespace {

using Told = std::vector<std::string>;
Told told;

// A control and a view that tell what reaches them.
struct ToldControl : objc::Implementation<ToldControl> {
  bool refuses;
  bool beginTracking(Object, Object) {
    told.emplace_back("begin");
    return !refuses;
  }
  void endTracking(Object, Object) { told.emplace_back("end"); }
  void cancelTracking(Object) { told.emplace_back("cancel"); }
  void setHighlighted(bool on) {
    super<void, "setHighlighted:">(on);
    told.emplace_back(on ? "lit" : "unlit");
  }
  void down() { told.emplace_back("down"); }
  void up() { told.emplace_back("up"); }
  void last() { told.emplace_back("last"); }
  void changed() { told.emplace_back("changed"); }
  static void registerClass() {
    objc::ClassBuilder<ToldControl>("ToldControl", "UIControl")
        .method<"beginTrackingWithTouch:withEvent:", &ToldControl::beginTracking>()
        .method<"endTrackingWithTouch:withEvent:", &ToldControl::endTracking>()
        .method<"cancelTrackingWithEvent:", &ToldControl::cancelTracking>()
        .method<"setHighlighted:", &ToldControl::setHighlighted>()
        .method<"down", &ToldControl::down>()
        .method<"up", &ToldControl::up>()
        .method<"last", &ToldControl::last>()
        .method<"changed", &ToldControl::changed>()
        .finish();
  }
};

struct ToldView : objc::Implementation<ToldView> {
  void began(Object, Object) { told.emplace_back("began"); }
  void ended(Object, Object) { told.emplace_back("ended"); }
  static void registerClass() {
    objc::ClassBuilder<ToldView>("ToldView", "UIView")
        .method<"touchesBegan:withEvent:", &ToldView::began>()
        .method<"touchesEnded:withEvent:", &ToldView::ended>()
        .finish();
  }
};

void on(unsigned long event, Object control, const char* action) {
  send<void, "addTarget:action:forControlEvents:">(control, control, sel_registerName(action),
                                                   event);
}

class Touches : public UIKitTest {
 protected:
  void SetUp() override {
    UIKitTest::SetUp();
    if (cls("ToldControl") == nullptr) {
      ToldControl::registerClass();
      ToldView::registerClass();
    }
    told.clear();
    window = shownWindow();
    parent = make("UIView", rect(50, 100, 200, 200));
    control = make("ToldControl", rect(20, 30, 100, 40));
    add(window, parent);
    add(parent, control);
    on(UIControl::touchDown, control, "down");
    on(UIControl::touchUpInside, control, "up");
    on(UIControl::touchUpInside, control, "last");
  }
  void TearDown() override {
    control = parent = window = nullptr;
    UIKitTest::TearDown();
  }

  Strong<Object> window, parent, control;
};

TEST_F(Touches, OfAControlAreTrackedAndActWhereTheyEnd) {
  EXPECT_EQ(tap(control), "");
  EXPECT_EQ(told, (Told{"begin", "lit", "down", "end", "unlit", "up", "last"}));
  EXPECT_FALSE(Finger::current().isDown());
}

TEST_F(Touches, OfAScriptAndOfAPageAreTheSame) {
  tap(control);
  const Told byTap = std::exchange(told, {});
  const CGPoint place = toRoot(control, middleOf(control));
  Finger::current().began(place);
  Finger::current().ended(place);
  EXPECT_EQ(told, byTap);
}

TEST_F(Touches, LetTheMainQueueGoOnBeforeTheyEnd) {
  phone.queue.add(phone.clock.uptime(), [] { told.emplace_back("queue"); });
  tap(control);
  EXPECT_EQ(told, (Told{"begin", "lit", "down", "queue", "end", "unlit", "up", "last"}));
}

TEST_F(Touches, TakeNoTime) {
  const Nanoseconds before = phone.clock.uptime();
  tap(control);
  EXPECT_EQ(phone.clock.uptime(), before);
}

TEST_F(Touches, ReachNothingThatIsNotThere) {
  const auto refused = [this](const char* why) {
    EXPECT_EQ(tap(control), std::string("the touch does not reach ToldControl but ") + why);
    EXPECT_EQ(told, Told());
  };
  send<void, "setHidden:">(control, true);
  refused("UIView: ToldControl is hidden");
  send<void, "setHidden:">(control, false);
  send<void, "setAlpha:">(control, 0.009);
  refused("UIView: ToldControl is transparent");
  send<void, "setAlpha:">(control, 0.01);
  send<void, "setUserInteractionEnabled:">(control, false);
  refused("UIView: ToldControl takes no touches");
  send<void, "setUserInteractionEnabled:">(control, true);
  send<void, "setUserInteractionEnabled:">(parent, false);
  refused("UIWindow: UIView around it takes no touches");
  send<void, "setUserInteractionEnabled:">(parent, true);
  send<void, "setHidden:">(parent, true);
  refused("UIWindow: UIView around it is hidden");
  send<void, "setHidden:">(parent, false);
  EXPECT_EQ(tap(control), "");
}

TEST_F(Touches, ReachNothingThatIsCovered) {
  const auto lid = make("UILabel", rect(0, 0, 390, 844));
  add(window, lid);
  EXPECT_EQ(tap(control), "");
  send<void, "setUserInteractionEnabled:">(lid, true);
  EXPECT_EQ(tap(control), "the touch does not reach ToldControl but UILabel");
}

TEST_F(Touches, ReachNothingOutsideOfWhatItLiesIn) {
  send<void, "setFrame:">(control, rect(180, 30, 100, 40));
  EXPECT_EQ(tap(control),
            "the touch does not reach ToldControl but UIWindow: the point lies "
            "outside UIView around it");
  send<void, "setFrame:">(parent, rect(300, 100, 200, 200));
  send<void, "setFrame:">(control, rect(100, 30, 100, 40));
  EXPECT_EQ(tap(control),
            "the touch does not reach ToldControl but nothing: the point lies "
            "outside UIWindow around it");
  EXPECT_EQ(told, Told());
}

TEST_F(Touches, ReachAViewInNoWindowAsIfItWereAlone) {
  send<void, "removeFromSuperview">(parent);
  EXPECT_EQ(tap(control), "");
  EXPECT_NE(told, Told());
  told = {};
  send<void, "setHidden:">(parent, true);
  EXPECT_EQ(tap(control),
            "the touch does not reach ToldControl but nothing: UIView around it is hidden");
  EXPECT_EQ(told, Told());
}

TEST_F(Touches, ReachNoWindowThatIsHidden) {
  send<void, "setHidden:">(window, true);
  EXPECT_EQ(tap(control),
            "the touch does not reach ToldControl but nothing: UIWindow around it "
            "is hidden");
}

TEST_F(Touches, OfWhatIsNotEnabledAreRefused) {
  send<void, "setEnabled:">(control, false);
  EXPECT_EQ(tap(control), "ToldControl is not enabled");
  EXPECT_EQ(told, Told());
}

TEST_F(Touches, ThatAControlDoesNotFollowSendNoActions) {
  ToldControl::of(control.get()).refuses = true;
  EXPECT_EQ(tap(control), "ToldControl does not follow the touch");
  EXPECT_EQ(told, Told{"begin"});
}

TEST_F(Touches, AreOneAtATime) {
  Finger::current().began(toRoot(control, middleOf(control)));
  EXPECT_EQ(tap(control), "a finger is on the screen already");
  Finger::current().cancelled();
  EXPECT_EQ(told, (Told{"begin", "lit", "down", "cancel", "unlit"}));
}

TEST_F(Touches, ReachViewsThatHandleThemThemselves) {
  const auto view = make("ToldView", rect(0, 0, 50, 20)), label = make("UILabel");
  add(parent, view);
  EXPECT_EQ(tap(view), "");
  EXPECT_EQ(told, (Told{"began", "ended"}));
  EXPECT_EQ(tap(parent), "UIView is no control, lies in none and takes no touches");
}

TEST_F(Touches, DragAKnobToItsValue) {
  const auto slider = make("UISlider", rect(10, 100, 130, 40));
  add(parent, slider);
  send<void, "addTarget:action:forControlEvents:">(
      slider, control.get(), sel_registerName("changed"), UIControl::valueChanged);
  send<void, "addTarget:action:forControlEvents:">(slider, control.get(), sel_registerName("up"),
                                                   UIControl::touchUpInside);
  const UISlider& state = UISlider::of(slider.get());
  for (const float value : {0.3F, 1.0F, 0.0F, 0.7F}) {
    told.clear();
    Finger::current().touch(slider, slider, state.knob(), state.knobAt(value));
    EXPECT_EQ((send<float, "value">(slider)), value);
    EXPECT_EQ(told, (Told{"changed", "up"}));
  }
}

TEST_F(Touches, TurnNoWheelOfAPickerThatIsNotEnabled) {
  const auto picker = make("UIDatePicker", rect(0, 300, 320, 200));
  send<void, "setDatePickerMode:">(picker, UIDatePicker::countDownTimer);
  send<void, "setCountDownDuration:">(picker, 3660.0);
  add(window, picker);
  advance(0);
  const auto turned = [&] {
    Finger::current().began({60, 400});
    Finger::current().moved({60, 368});
    Finger::current().ended({60, 368});
    advance(3);
    return send<double, "countDownDuration">(picker);
  };
  send<void, "setEnabled:">(picker, false);
  EXPECT_EQ(tap(picker), "UIDatePicker is not enabled");
  EXPECT_EQ(turned(), 3660);
  send<void, "setEnabled:">(picker, true);
  EXPECT_NE(turned(), 3660);
}

}  // namespace
}  // namespace sim
