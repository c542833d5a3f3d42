#include <functional>

#include "simulator/uikit/touches/Finger.h"
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
  set((23 * 60 + 59) * 60 + 59.9);
  EXPECT_EQ(duration(), (23 * 60 + 59) * 60);
  set(24 * 3600);  // has no place on the wheels: the first step after nothing
  EXPECT_EQ(duration(), 60);
  set(100000);
  EXPECT_EQ(duration(), 60);
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
  for (const long wrong : {7L, 60L, 0L, -5L}) {
    setInterval(wrong);
    EXPECT_EQ((send<long, "minuteInterval">(picker.get())), 5);
  }
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

TEST_F(DatePicker, ChangesWhenAllItsWheelsRest) {
  const auto window = shownWindow();
  send<void, "setFrame:">(picker.get(), rect(0, 0, 320, 200));
  add(window, picker);
  set(3600);
  advance(0);
  Finger& finger = Finger::current();
  // The hours run out while the minutes are held, and come back to where they were.
  finger.began({60, 100});
  advance(0.02);
  finger.moved({60, 60});
  advance(0.02);
  finger.moved({60, 20});
  finger.ended({60, 20});
  finger.began({260, 100});
  advance(5);
  EXPECT_EQ(duration(), 3600);
  finger.ended({260, 100});
  advance(2);
  EXPECT_GT(duration(), 2 * 3600);
}

TEST_F(DatePicker, EndsWithTheLastHour) {
  const auto window = shownWindow();
  send<void, "setFrame:">(picker.get(), rect(0, 0, 320, 200));
  add(window, picker);
  set(23 * 3600);
  advance(0);
  Finger& finger = Finger::current();
  finger.began({60, 100});
  finger.moved({60, 0});
  advance(1);
  finger.ended({60, 0});
  advance(2);
  EXPECT_EQ(duration(), 23 * 3600);
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
