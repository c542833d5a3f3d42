#include "simulator/uikit/resources/UIImage.h"
#include "tests/autolayout/LayoutTest.h"

namespace sim {
namespace {

using namespace attribute;

constexpr long horizontal = 0, vertical = 1;

class Contents : public LayoutTest {
 protected:
  void SetUp() override {
    LayoutTest::SetUp();
    window = shownWindow();
  }
  void TearDown() override {
    window = {};
    LayoutTest::TearDown();
  }
  void hug(Object view, float priority) {
    send<void, "setContentHuggingPriority:forAxis:">(view, priority, horizontal);
  }
  void resist(Object view, float priority) {
    send<void, "setContentCompressionResistancePriority:forAxis:">(view, priority, horizontal);
  }
  // One beside the other over the whole width of the window.
  void fillRow(Object a, Object b) {
    constrain({a, left, equal, window, left});
    constrain({b, left, equal, a, right});
    constrain({b, right, equal, window, right});
    for (const Object each : {a, b}) constrain({each, top, equal, window, top});
  }
};

TEST_F(Contents, ViewsAreAsLargeAsTheyAsk) {
  const auto view = content(window, {70, 30});
  place(view, 10, 10);
  EXPECT_EQ(laidOut(view), rect(10, 10, 70, 30));
}

TEST_F(Contents, AViewMayAskForOneAxisAlone) {
  const auto view = content(window, {-1, 30});
  place(view, 10, 10);
  EXPECT_EQ(laidOut(view), rect(10, 10, 0, 30));
  EXPECT_EQ((send<float, "contentHuggingPriorityForAxis:">(view.get(), vertical)), 250);
  EXPECT_EQ((send<float, "contentCompressionResistancePriorityForAxis:">(view.get(), vertical)),
            750);
}

TEST_F(Contents, TheOneThatHugsLessStretches) {
  const auto a = content(window, {70, 30}), b = content(window, {50, 30});
  fillRow(a, b);
  hug(b, 249);
  EXPECT_EQ(laidOut(a), rect(0, 0, 70, 30));
  EXPECT_EQ(frameOf(b), rect(70, 0, 320, 30));
  hug(b, 251);
  EXPECT_EQ(laidOut(a), rect(0, 0, 340, 30));
}

TEST_F(Contents, TheLabelThatHugsLessStretches) {
  const auto a = label(window, "one"), b = label(window, "other");
  fillRow(a, b);
  hug(b, 249);
  const double width = laidOut(a).size.width;
  EXPECT_LT(width, 100);
  hug(b, 251);
  EXPECT_GT(laidOut(a).size.width, 300);
  hug(b, 249);
  EXPECT_EQ(laidOut(a).size.width, width);
}

TEST_F(Contents, TheOneThatResistsLessIsCompressed) {
  const auto a = content(window, {300, 30}), b = content(window, {200, 30});
  fillRow(a, b);
  resist(a, 749);
  EXPECT_EQ(laidOut(a), rect(0, 0, 190, 30));
  EXPECT_EQ(frameOf(b), rect(190, 0, 200, 30));
  resist(a, 751);
  EXPECT_EQ(laidOut(a), rect(0, 0, 300, 30));
  EXPECT_EQ(frameOf(b), rect(300, 0, 90, 30));
}

TEST_F(Contents, ConstraintsOfHigherPrioritiesOutweighContents) {
  const auto view = content(window, {70, 30});
  place(view, 0, 0);
  const Object weak = width(view, 100, 249);
  EXPECT_EQ(laidOut(view), rect(0, 0, 70, 30));
  send<void, "setPriority:">(weak, 251.0F);
  EXPECT_EQ(laidOut(view), rect(0, 0, 100, 30));
  send<void, "setConstant:">(weak, 20.0);  // resistance outweighs it
  EXPECT_EQ(laidOut(view), rect(0, 0, 70, 30));
  send<void, "setPriority:">(weak, 751.0F);
  EXPECT_EQ(laidOut(view), rect(0, 0, 20, 30));
}

TEST_F(Contents, NewTextMakesALabelWider) {
  const auto text = label(window, "short");
  place(text, 0, 0);
  const double before = laidOut(text).size.width;
  EXPECT_EQ(before, (send<CGSize, "intrinsicContentSize">(text.get())).width);
  send<void, "setText:">(text.get(), string("a longer text"));
  EXPECT_EQ(frameOf(text).size.width, before);  // until the run loop comes round
  EXPECT_GT(laidOut(text).size.width, before);
}

TEST_F(Contents, ANewImageResizesItsView) {
  const auto image = child(window, "UIImageView");
  place(image, 0, 0);
  EXPECT_EQ(laidOut(image).size, CGSize());
  const auto square = objc::adopt(Object(objc_alloc_init(cls("UIImage"))));
  UIImage::of(square.get()).size = {24, 24};
  send<void, "setImage:">(image.get(), square.get());
  EXPECT_EQ(laidOut(image).size, (CGSize{24, 24}));
}

TEST_F(Contents, SizesAreAskedForOnceUntilTheyAreInvalid) {
  const auto view = content(window, {70, 30});
  place(view, 0, 0);
  advance(0);
  ContentView::of(view.get()).content = {90, 30};
  const Object wider = width(view, 10, 1);
  EXPECT_EQ(laidOut(view), rect(0, 0, 70, 30));
  send<void, "invalidateIntrinsicContentSize">(view.get());
  EXPECT_EQ(laidOut(view), rect(0, 0, 90, 30));
  send<void, "setActive:">(wider, false);
}

// Its height is that of the text at the width which the constraints give it.
TEST_F(Contents, TextWrapsAtTheWidthThatItGets) {
  const auto text = label(window, "several words that do not go into one line of it");
  send<void, "setNumberOfLines:">(text.get(), 0L);
  place(text, 0, 0);
  const auto below = content(window, {10, 10});
  constrain({below, top, equal, text, bottom});
  constrain({below, left, equal, window, left});
  const double oneLine = laidOut(text).size.height;
  const Object narrow = width(text, 120);
  const double wrapped = laidOut(text).size.height;
  EXPECT_GT(wrapped, 2 * oneLine);
  EXPECT_EQ(wrapped, (send<CGSize, "sizeThatFits:">(text.get(), CGSize{120, 1000})).height);
  EXPECT_EQ(frameOf(below).origin.y, wrapped);
  send<void, "setConstant:">(narrow, 1000.0);
  EXPECT_EQ(laidOut(text).size.height, oneLine);
}

TEST_F(Contents, TheNumberOfLinesCountsAtOnce) {
  const auto text = label(window, "several words that do not go into one line of it");
  place(text, 0, 0);
  width(text, 120);
  const double oneLine = laidOut(text).size.height;
  send<void, "setNumberOfLines:">(text.get(), 2L);
  EXPECT_GT(laidOut(text).size.height, 1.5 * oneLine);
  send<void, "setNumberOfLines:">(text.get(), 1L);
  EXPECT_EQ(laidOut(text).size.height, oneLine);
}

}  // namespace
}  // namespace sim
