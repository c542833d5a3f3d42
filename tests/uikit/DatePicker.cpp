#include "tests/uikit/UIKitTest.h"

namespace sim {
namespace {

class DatePicker : public UIKitTest {
 protected:
  void SetUp() override {
    UIKitTest::SetUp();
    picker = make("UIDatePicker");
    send<void, "setDatePickerMode:">(picker.get(), 3L);
  }
  void TearDown() override {
    picker = nullptr;
    UIKitTest::TearDown();
  }
  double duration() const { return send<double, "countDownDuration">(picker.get()); }
  void set(double seconds) { send<void, "setCountDownDuration:">(picker.get(), seconds); }
  void setInterval(long minutes) { send<void, "setMinuteInterval:">(picker.get(), minutes); }

  Strong<Object> picker;
};

TEST_F(DatePicker, ShowsWholeStepsFromOneUpwards) {
  EXPECT_EQ(duration(), 60);
  set(125);
  EXPECT_EQ(duration(), 120);
  set(0);
  EXPECT_EQ(duration(), 60);
  set(100000);
  EXPECT_EQ(duration(), (23 * 60 + 59) * 60);
}

TEST_F(DatePicker, StepsDivideTheHour) {
  set(47 * 60);
  setInterval(5);
  EXPECT_EQ(duration(), 45 * 60);
  setInterval(1);  // the wheels have moved
  EXPECT_EQ(duration(), 45 * 60);
  setInterval(5);
  set(60);
  EXPECT_EQ(duration(), 5 * 60);
  set(100000);
  EXPECT_EQ(duration(), (23 * 60 + 55) * 60);
  setInterval(7);
  EXPECT_EQ((send<long, "minuteInterval">(picker.get())), 1);
  setInterval(60);
  EXPECT_EQ((send<long, "minuteInterval">(picker.get())), 1);
}

TEST_F(DatePicker, OnlyCountsDownInThatMode) {
  send<void, "setDatePickerMode:">(picker.get(), 1L);
  set(600);
  EXPECT_EQ(duration(), 0);
}

TEST_F(DatePicker, HasPrivateColours) {
  const Object white = send<Object, "whiteColor">(cls("UIColor"));
  send<void, "_setTextColor:">(picker.get(), white);
  EXPECT_EQ((send<Object, "_textColor">(picker.get())), white);
  const SEL highlights = sel_registerName("setHighlightsToday:");
  EXPECT_STREQ(method_getTypeEncoding(class_getInstanceMethod(cls("UIDatePicker"), highlights)),
               "v@:B");
  send<Object, "performSelector:withObject:">(picker.get(), highlights, number(false));
}

}  // namespace
}  // namespace sim
