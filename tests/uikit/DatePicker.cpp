#include <functional>

#include "simulator/uikit/views/UILabel.h"
#include "simulator/uikit/views/ViewTree.h"
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

// The texts of all labels below a view, from left to right, in the row of the wheels' selection.
std::vector<std::string> selection(Object picker) {
  std::map<double, std::string> byPlace;
  const std::function<void(Object)> look = [&](Object view) {
    if (UIView::of(view).alpha() < 1) return;
    const double x = toRoot(view, {}).x;
    if (UILabel::cls() == object_getClass(view.get()))
      byPlace[x] = text(send<Object, "text">(view));
    for (const auto& child : UIView::of(view).children) look(child.get());
  };
  look(picker);
  std::vector<std::string> texts;
  for (const auto& [x, its] : byPlace) texts.push_back(its);
  return texts;
}

TEST_F(DatePicker, ShowsTheDurationOnItsWheels) {
  const auto window = shownWindow();
  send<void, "setFrame:">(picker.get(), rect(0, 0, 320, 200));
  add(window, picker);
  set(2 * 3600 + 45 * 60);
  advance(0);
  EXPECT_EQ(selection(picker), (std::vector<std::string>{"2", "hours", "45", "min"}));
  set(3600);
  advance(0);
  EXPECT_EQ(selection(picker), (std::vector<std::string>{"1", "hour", "0", "min"}));
}

TEST_F(DatePicker, SpeaksThePhonesLanguage) {
  const auto window = shownWindow();
  send<void, "setFrame:">(picker.get(), rect(0, 0, 320, 200));
  phone.setup.locale = "ar_SA";
  add(window, picker);
  set(45 * 60);
  advance(0);
  // From the right.
  EXPECT_EQ(selection(picker), (std::vector<std::string>{"د", "٤٥", "ساعة", "٠"}));
  set(3 * 3600 + 45 * 60);
  advance(0);
  EXPECT_EQ(selection(picker), (std::vector<std::string>{"د", "٤٥", "ساعات", "٣"}));
  phone.setup.locale = "en_US";
}

TEST_F(DatePicker, WithoutACountDownHasNoWheels) {
  const auto window = shownWindow();
  send<void, "setDatePickerMode:">(picker.get(), 1L);
  add(window, picker);
  advance(0);
  EXPECT_TRUE(UIView::of(picker.get()).children.empty());
}

}  // namespace
}  // namespace sim
