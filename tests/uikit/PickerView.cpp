#include "objc/Class.h"
#include "simulator/uikit/UIPickerView.h"
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
  select(1000);
  EXPECT_EQ(selected(), 98);
  EXPECT_TRUE(chosen.empty());
}

TEST_F(PickerView, SelectingByTouchTellsTheDelegate) {
  EXPECT_TRUE(UIPickerView::of(picker.get()).userSelectsRow(4, 0));
  EXPECT_FALSE(UIPickerView::of(picker.get()).userSelectsRow(99, 0));
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

}  // namespace
}  // namespace sim
