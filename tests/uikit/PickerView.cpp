#include "objc/Class.h"
#include "simulator/uikit/pickers/UIPickerView.h"
#include "simulator/uikit/touches/Finger.h"
#include "simulator/uikit/views/UIView.h"
#include "tests/uikit/UIKitTest.h"

namespace sim {
namespace {

long rows = 0;
std::vector<long> chosen;
long viewsMade = 0;

struct Source : objc::Implementation<Source> {
  long components(Object) { return 1; }
  long rowsIn(Object, long) { return rows; }
  Object view(Object, long, long, Object) {
    ++viewsMade;
    return objc::autorelease(sim::make("UILabel"));
  }
  void didSelect(Object, long row, long) { chosen.push_back(row); }
  static void registerClass() {
    objc::ClassBuilder<Source>("RowSource", "NSObject")
        .method<"numberOfComponentsInPickerView:", &Source::components>()
        .method<"pickerView:numberOfRowsInComponent:", &Source::rowsIn>()
        .method<"pickerView:viewForRow:forComponent:reusingView:", &Source::view>()
        .method<"pickerView:didSelectRow:inComponent:", &Source::didSelect>()
        .finish();
  }
};

class PickerView : public UIKitTest {
 protected:
  void SetUp() override {
    UIKitTest::SetUp();
    if (cls("RowSource") == nullptr) Source::registerClass();
    rows = 99;
    chosen.clear();
    viewsMade = 0;
    source = objc::adopt(send<Object, "new">(cls("RowSource")));
    picker = make("UIPickerView");
    send<void, "setDataSource:">(picker.get(), source.get());
    send<void, "setDelegate:">(picker.get(), source.get());
  }
  void TearDown() override {
    picker = nullptr;
    source = nullptr;
    UIKitTest::TearDown();
  }
  long selected() const { return send<long, "selectedRowInComponent:">(picker.get(), 0L); }
  void select(long row) {
    send<void, "selectRow:inComponent:animated:">(picker.get(), row, 0L, false);
  }

  Strong<Object> source;
  Strong<Object> picker;
};

TEST_F(PickerView, BeginsWithTheFirstRow) {
  EXPECT_EQ(selected(), 0);
  EXPECT_EQ((send<long, "numberOfRowsInComponent:">(picker.get(), 0L)), 99);
  EXPECT_EQ((send<long, "selectedRowInComponent:">(make("UIPickerView").get(), 0L)), -1);
}

TEST_F(PickerView, SelectingByMessageTellsNobody) {
  select(41);
  EXPECT_EQ(selected(), 41);
  EXPECT_TRUE(chosen.empty());
}

TEST_F(PickerView, SelectsNoRowThatItDoesNotHave) {
  select(41);
  select(99);
  EXPECT_EQ(selected(), 41);
  EXPECT_DEATH(select(-1), "NSRangeException");
}

TEST_F(PickerView, TurningItByHandTellsTheDelegate) {
  EXPECT_TRUE(UIPickerView::of(picker.get()).hasRow(98, 0));
  EXPECT_FALSE(UIPickerView::of(picker.get()).hasRow(99, 0));
  EXPECT_FALSE(UIPickerView::of(picker.get()).hasRow(0, 1));
  UIPickerView::of(picker.get()).turnTo(4, 0);
  EXPECT_EQ(selected(), 4);
  EXPECT_EQ(chosen, std::vector<long>{4});
}

TEST_F(PickerView, ReloadsItsRows) {
  select(50);
  rows = 10;
  send<void, "reloadAllComponents">(picker.get());
  EXPECT_EQ(selected(), 9);
}

TEST_F(PickerView, MakesAViewForARowOnce) {
  const auto view = [this] {
    return send<Object, "viewForRow:forComponent:">(picker.get(), 3L, 0L);
  };
  EXPECT_TRUE(view());
  EXPECT_EQ(view(), view());
  EXPECT_EQ(viewsMade, 1);
}

// The wheel of an only component.
std::vector<Strong<Object>> cells(Object wheel) {
  return UIView::of(wheel).children;
}
Object wheelOf(Object picker) {
  return UIView::of(picker).children.at(1).get();
}
double middle(Object cell) {
  return send<CGPoint, "center">(cell).y;
}

TEST_F(PickerView, ShowsTheRowsAroundTheSelectedOne) {
  const auto window = shownWindow();
  send<void, "setFrame:">(picker.get(), rect(0, 0, 320, 200));
  select(50);
  add(window, picker);
  advance(0);
  const auto shown = cells(wheelOf(picker));
  ASSERT_EQ(shown.size(), 9U);
  EXPECT_EQ(viewsMade, 9);
  EXPECT_DOUBLE_EQ(middle(shown[4]), 100);
  EXPECT_DOUBLE_EQ(UIView::of(shown[4].get()).alpha(), 1);
  EXPECT_LT(UIView::of(shown[3].get()).alpha(), 0.6);
  EXPECT_LT(UIView::of(shown[0].get()).alpha(), UIView::of(shown[3].get()).alpha());
  EXPECT_LT(middle(shown[3]), 100 - 20);
  EXPECT_DOUBLE_EQ(middle(shown[3]) + middle(shown[5]), 200);
}

TEST_F(PickerView, HasNoRowsBeyondItsEnds) {
  const auto window = shownWindow();
  add(window, picker);
  advance(0);
  EXPECT_EQ(cells(wheelOf(picker)).size(), 5U);
  select(98);
  advance(0);
  EXPECT_EQ(cells(wheelOf(picker)).size(), 5U);
}

TEST_F(PickerView, WhatOthersAddLiesInFrontOfTheWheels) {
  const auto window = shownWindow();
  const auto label = make("UILabel");
  add(picker, label);
  add(window, picker);
  advance(0);
  EXPECT_EQ(UIView::of(picker.get()).children.back().get(), label.get());
  EXPECT_EQ(UIView::of(picker.get()).children.size(), 3U);
}

TEST_F(PickerView, MakesItsRowsAgainInANewSize) {
  const auto window = shownWindow();
  send<void, "setFrame:">(picker.get(), rect(0, 0, 321, 250));
  add(window, picker);
  select(50);
  advance(0);
  EXPECT_EQ(frameOf(wheelOf(picker)), rect(9, 0, 303, 250));
  viewsMade = 0;
  send<void, "setFrame:">(picker.get(), rect(10, 0, 321, 250));
  advance(0);
  EXPECT_EQ(viewsMade, 0);
  send<void, "setFrame:">(picker.get(), rect(0, 0, 200, 100));
  advance(0);
  EXPECT_EQ(viewsMade, 9);
  EXPECT_EQ(frameOf(wheelOf(picker)), rect(9, 0, 182, 100));
  const auto shown = cells(wheelOf(picker));
  EXPECT_EQ((send<CGRect, "bounds">(shown[4].get())), rect(0, 0, 182, 24));
  EXPECT_EQ(selected(), 50);
  EXPECT_TRUE(chosen.empty());
}

TEST_F(PickerView, TellsTheRowUnderItsBarWhileItTurns) {
  const auto window = shownWindow();
  send<void, "setFrame:">(picker.get(), rect(0, 0, 320, 300));
  add(window, picker);
  select(50);
  advance(0);
  Finger& finger = Finger::current();
  finger.began({160, 150});
  finger.moved({160, 150 - 3 * 32});
  EXPECT_EQ(selected(), 53);
  EXPECT_TRUE(chosen.empty());
  // A new size ends the turn on that row, and tells nobody.
  send<void, "setFrame:">(picker.get(), rect(0, 0, 200, 300));
  advance(0);
  finger.ended({160, 150 - 3 * 32});
  advance(3);
  EXPECT_EQ(selected(), 53);
  EXPECT_TRUE(chosen.empty());
}

TEST_F(PickerView, RollsToARow) {
  const auto window = shownWindow();
  send<void, "setFrame:">(picker.get(), rect(0, 0, 320, 200));
  add(window, picker);
  advance(0);
  const Object first = cells(wheelOf(picker)).front();
  const auto seenAt = [first] {
    return send<CGPoint, "position">(
               send<Object, "presentationLayer">(send<Object, "layer">(first)))
        .y;
  };
  send<void, "selectRow:inComponent:animated:">(picker.get(), 1L, 0L, true);
  EXPECT_DOUBLE_EQ(seenAt(), 100);
  advance(0.15);
  EXPECT_LT(seenAt(), 95);
  EXPECT_GT(seenAt(), middle(first));
  advance(0.15);
  EXPECT_DOUBLE_EQ(seenAt(), middle(first));
}

}  // namespace
}  // namespace sim
