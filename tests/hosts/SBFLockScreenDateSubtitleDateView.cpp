#include "objc/Method.h"
#include "simulator/coregraphics/Geometry.h"
#include "simulator/runtime/LiveObjects.h"
#include "tests/hosts/TestHost.h"

namespace sim {
namespace {

class LockScreenDateView : public TestHost {
 protected:
  LockScreenDateView() { boot(); }

  static objc::Strong<objc::Object> make() {
    return objc::adopt(
        objc::send<objc::Object, "new">(objc_getClass("SBFLockScreenDateSubtitleDateView")));
  }
  static objc::Object label(objc::Object view) {
    return objc::send<objc::Object, "valueForKey:">(view, string("_label"));
  }
  static void setDate(objc::Object view, double moment) {
    objc::send<void, "setDate:">(view, date(moment));
  }
};

long draws = 0;

void countDraw(objc::Object, objc::Object, objc::Object) {
  ++draws;
}

TEST_F(LockScreenDateView, DrawsADateIntoItsLabel) {
  const auto view = make();
  EXPECT_FALSE((objc::send<objc::Object, "string">(view.get())));
  setDate(view.get(), 0);
  EXPECT_EQ(text(objc::send<objc::Object, "string">(label(view.get()))), "Monday, January 1");
  EXPECT_EQ(text(objc::send<objc::Object, "string">(view.get())), "Monday, January 1");
  EXPECT_EQ(notation(objc::send<objc::Object, "date">(view.get())), "2001-01-01 00:00:00 +0000");
  objc::send<void, "setDate:">(view.get(), nullptr);
  EXPECT_FALSE((objc::send<objc::Object, "string">(view.get())));
}

TEST_F(LockScreenDateView, EveryDrawingGoesThroughTheInnerMethod) {
  Class counted = objc_allocateClassPair(objc_getClass("SBFLockScreenDateSubtitleDateView"),
                                         "CountedDateView", 0);
  objc::addMethod<"_setDate:inTimeZone:", &countDraw>(counted);
  objc_registerClassPair(counted);
  const auto view = objc::adopt(objc::send<objc::Object, "new">(counted));
  setDate(view.get(), 0);
  EXPECT_EQ(draws, 1);
}

TEST_F(LockScreenDateView, JournalsEveryChangeOfItsText) {
  const auto view = make();
  setDate(view.get(), 0);
  setDate(view.get(), 60);
  objc::send<void, "setString:">(label(view.get()), string("3 songs left"));
  objc::send<void, "setString:">(label(view.get()), string("3 songs left"));
  setDate(view.get(), 60);
  objc::send<void, "setString:">(label(view.get()), nullptr);
  const std::vector<std::string> expected = {
      "lock screen date \"Monday, January 1\"", "lock screen date \"3 songs left\"",
      "lock screen date \"Monday, January 1\"", "lock screen date nil"};
  EXPECT_EQ(journal(), expected);
}

TEST_F(LockScreenDateView, OtherLabelsAreNotJournalled) {
  const auto other =
      objc::adopt(objc::send<objc::Object, "new">(objc_getClass("SBUILegibilityLabel")));
  objc::send<void, "setString:">(other.get(), string("22:00"));
  EXPECT_TRUE(journal().empty());
}

TEST_F(LockScreenDateView, FitsItsText) {
  const auto view = make();
  const auto widthWith = [&view](const char* shown) {
    objc::send<void, "setString:">(label(view.get()), string(shown));
    objc::send<void, "sizeToFit">(view.get());
    return objc::send<CGRect, "frame">(view.get()).size.width;
  };
  EXPECT_GT(widthWith("twelve songs left"), widthWith("3 songs left"));
  EXPECT_EQ(widthWith(""), 0);
}

TEST_F(LockScreenDateView, TakesItsLabelAlong) {
  {
    const objc::AutoreleasePool pool;
    const auto view = make();
    setDate(view.get(), 0);
  }
  EXPECT_EQ(sim::runtime::liveInstanceCount(objc_getClass("SBUILegibilityLabel")), 0U);
}

}  // namespace
}  // namespace sim
