// The panel's own layouts at the sizes that they are shown in. Texts are replaced by longer ones;
// what they say is the extension's business.
#include <fstream>
#include <iterator>

#include "simulator/foundation/NSData.h"
#include "simulator/uikit/resources/UIImage.h"
#include "tests/autolayout/LayoutTest.h"
#include "tools/nibc/Compiler.h"
#include "tools/nibc/nib/Writer.h"

namespace sim {
namespace {

CGRect frameOfSuperview(Object self) {
  return send<CGRect, "frame">(send<Object, "superview">(self));
}

// Like the extension's pages, these say that they stand where their superviews stand.
struct TimerPage : objc::Implementation<TimerPage> {
  Strong<Object> titleLabel, timerLabel, subtitleLabel, backButton, cancelTimerButton;
  Strong<Object> bottomButtonHeightConstraint;

  static void registerClass() {
    objc::ClassBuilder<TimerPage>("CurrentTimerView", "UIView")
        .method<"frame", &frameOfSuperview>()
        .property<"titleLabel", &TimerPage::titleLabel>()
        .property<"timerLabel", &TimerPage::timerLabel>()
        .property<"subtitleLabel", &TimerPage::subtitleLabel>()
        .property<"backButton", &TimerPage::backButton>()
        .property<"cancelTimerButton", &TimerPage::cancelTimerButton>()
        .property<"bottomButtonHeightConstraint", &TimerPage::bottomButtonHeightConstraint>()
        .finish();
  }
};

struct ActionsPage : objc::Implementation<ActionsPage> {
  Strong<Object> titleLabel, backButton, toggleStartEndButton;
  Strong<Object> planeModeButton, dndButton, runShortcutButton, bluetoothButton, customVolumeButton;

  static void registerClass() {
    objc::ClassBuilder<ActionsPage>("OnTimerEndsSettingsView", "UIView")
        .method<"frame", &frameOfSuperview>()
        .property<"titleLabel", &ActionsPage::titleLabel>()
        .property<"backButton", &ActionsPage::backButton>()
        .property<"toggleStartEndButton", &ActionsPage::toggleStartEndButton>()
        .property<"planeModeButton", &ActionsPage::planeModeButton>()
        .property<"dndButton", &ActionsPage::dndButton>()
        .property<"runShortcutButton", &ActionsPage::runShortcutButton>()
        .property<"bluetoothButton", &ActionsPage::bluetoothButton>()
        .property<"customVolumeButton", &ActionsPage::customVolumeButton>()
        .finish();
  }
};

struct CheckBox : objc::Implementation<CheckBox> {
  static void registerClass() {
    objc::ClassBuilder<CheckBox>("CheckboxButton", "UIButton").finish();
  }
};

struct ImageButton : objc::Implementation<ImageButton> {
  Strong<Object> contentView, iconImage, textLabel;
  Strong<Object> iconAspectRatioConstraint, iconWidthConstraint, labelLeadingConstraint;

  static void registerClass() {
    objc::ClassBuilder<ImageButton>("ImageButton", "UIButton")
        .property<"contentView", &ImageButton::contentView>()
        .property<"iconImage", &ImageButton::iconImage>()
        .property<"textLabel", &ImageButton::textLabel>()
        .property<"iconAspectRatioConstraint", &ImageButton::iconAspectRatioConstraint>()
        .property<"iconWidthConstraint", &ImageButton::iconWidthConstraint>()
        .property<"labelLeadingConstraint", &ImageButton::labelLeadingConstraint>()
        .finish();
  }
};

class PanelLayouts : public LayoutTest {
 protected:
  PanelLayouts() {
    if (cls("CurrentTimerView") != nullptr) return;
    TimerPage::registerClass();
    ActionsPage::registerClass();
    CheckBox::registerClass();
    ImageButton::registerClass();
  }
  void SetUp() override {
    LayoutTest::SetUp();
    locale_ = phone.setup.locale;
    window = shownWindow();
    host = make("UIView", rect(30, 100, 321, 250));
    add(window, host);
  }
  void TearDown() override {
    EXPECT_EQ(journal(), std::vector<std::string>());  // no constraint breaks
    host = window = {};
    phone.setup.locale = locale_;
    LayoutTest::TearDown();
  }
  static Object load(const std::string& name, Object owner) {
    std::ifstream file(LAYOUTS "/" + name + ".xib", std::ios::binary);
    const std::string bytes = nib::write(xib::compile({std::istreambuf_iterator<char>(file), {}}));
    const Object made = send<Object, "nibWithData:bundle:">(cls("UINib"), dataOf(bytes), Object());
    return send<Object, "firstObject">(
        send<Object, "instantiateWithOwner:options:">(made, owner, Object()));
  }
  // In the panel, which has that size.
  Object page(const std::string& name, double itsWidth, double itsHeight) {
    const Object made = load(name, nullptr);
    add(host, made);
    resize(made, itsWidth, itsHeight);
    return made;
  }
  void resize(Object page, double itsWidth, double itsHeight) {
    send<void, "setFrame:">(host.get(), rect(30, 100, itsWidth, itsHeight));
    send<void, "setFrame:">(page, rect(0, 0, itsWidth, itsHeight));
    advance(0);
  }
  static void setTitle(Object button, const char* title) {
    send<void, "setTitle:forState:">(button, string(title), 0UL);
  }
  static void setText(Object label, const char* text) {
    send<void, "setText:">(label, string(text));
  }
  // In the coordinates of that view.
  static CGRect inside(Object view, Object outer) {
    return send<CGRect, "convertRect:toView:">(view, send<CGRect, "bounds">(view), outer);
  }

  Strong<Object> host;

 private:
  std::string locale_;
};

constexpr double third = 1.0 / 3;

TEST_F(PanelLayouts, TimerPage) {
  const Object page = this->page("CurrentTimerView", 321, 250);
  const TimerPage& parts = TimerPage::of(page);
  EXPECT_TRUE(isAbout(inside(parts.titleLabel, page), rect(16, 43 + third, 289, 20 + third)));
  EXPECT_TRUE(isAbout(inside(parts.timerLabel, page), rect(16, 67 + 2 * third, 289, 67)));
  EXPECT_TRUE(isAbout(inside(parts.subtitleLabel, page), rect(16, 138 + 2 * third, 289, 18)));
  EXPECT_TRUE(isAbout(inside(parts.backButton, page), rect(0, 200, 160 + 2 * third, 50)));
  EXPECT_TRUE(
      isAbout(inside(parts.cancelTimerButton, page), rect(160 + 2 * third, 200, 160 + third, 50)));
}

// The confirmation: the bar is gone, the texts move into the middle of the whole panel.
TEST_F(PanelLayouts, TimerPageWithoutItsBar) {
  const Object page = this->page("CurrentTimerView", 321, 250);
  const TimerPage& parts = TimerPage::of(page);
  for (const Object each : {parts.backButton.get(), parts.cancelTimerButton.get()})
    send<void, "setHidden:">(each, true);
  send<void, "setConstant:">(parts.bottomButtonHeightConstraint.get(), 0.0);
  advance(0);
  EXPECT_TRUE(isAbout(inside(parts.timerLabel, page), rect(16, 92 + 2 * third, 289, 67)));
  EXPECT_EQ(inside(send<Object, "superview">(parts.backButton.get()), page), rect(0, 250, 321, 0));
  for (const Object each : {parts.backButton.get(), parts.cancelTimerButton.get()})
    send<void, "setHidden:">(each, false);
  send<void, "setConstant:">(parts.bottomButtonHeightConstraint.get(), 50.0);
  advance(0);
  EXPECT_TRUE(isAbout(inside(parts.timerLabel, page), rect(16, 67 + 2 * third, 289, 67)));
  EXPECT_TRUE(isAbout(inside(parts.backButton, page), rect(0, 200, 160 + 2 * third, 50)));
}

TEST_F(PanelLayouts, TimerPageInALowPanel) {
  const Object page = this->page("CurrentTimerView", 321, 200);
  const TimerPage& parts = TimerPage::of(page);
  EXPECT_TRUE(isAbout(inside(parts.titleLabel, page), rect(16, 18 + third, 289, 20 + third)));
  EXPECT_TRUE(isAbout(inside(parts.timerLabel, page), rect(16, 42 + 2 * third, 289, 67)));
  EXPECT_TRUE(isAbout(inside(parts.backButton, page), rect(0, 150, 160 + 2 * third, 50)));
}

// Not even there do texts run out of the page: the large one gives way.
TEST_F(PanelLayouts, TimerPageInAPanelThatIsTooLow) {
  const Object page = this->page("CurrentTimerView", 321, 130);
  const TimerPage& parts = TimerPage::of(page);
  EXPECT_TRUE(isAbout(inside(parts.titleLabel, page), rect(16, 0, 289, 20 + third)));
  EXPECT_TRUE(isAbout(inside(parts.timerLabel, page), rect(16, 24 + third, 289, 33 + 2 * third)));
  EXPECT_TRUE(isAbout(inside(parts.subtitleLabel, page), rect(16, 62, 289, 18)));
}

// On its way onto the screen the panel has any size: TearDown looks for complaints.
TEST_F(PanelLayouts, NoPageComplainsOfASize) {
  for (const char* name : {"CurrentTimerView", "OnTimerEndsSettingsView"}) {
    const Object page = this->page(name, 0, 0);
    for (const CGSize size : {CGSize{321, 20}, CGSize{20, 250}, CGSize{10, 10}, CGSize{321, 250}})
      resize(page, size.width, size.height);
    EXPECT_EQ(journal(), std::vector<std::string>()) << name;
  }
}

TEST_F(PanelLayouts, TimerPageInLandscape) {
  const Object page = this->page("CurrentTimerView", 568, 250);
  const TimerPage& parts = TimerPage::of(page);
  EXPECT_TRUE(isAbout(inside(parts.titleLabel, page), rect(16, 43 + third, 536, 20 + third)));
  EXPECT_TRUE(isAbout(inside(parts.backButton, page), rect(0, 200, 284, 50)));
  EXPECT_TRUE(isAbout(inside(parts.cancelTimerButton, page), rect(284, 200, 284, 50)));
  resize(page, 321, 250);  // and back
  EXPECT_TRUE(isAbout(inside(parts.titleLabel, page), rect(16, 43 + third, 289, 20 + third)));
}

// Texts shrink, they move nothing.
TEST_F(PanelLayouts, TimerPageWithLongTexts) {
  const Object page = this->page("CurrentTimerView", 321, 250);
  const TimerPage& parts = TimerPage::of(page);
  setText(parts.titleLabel, "Die Musikwiedergabe wird voraussichtlich angehalten in");
  setText(parts.timerLabel, "88:88:88:88:88:88:88");
  setText(parts.subtitleLabel, "verbleibende Musiktitel");
  setTitle(parts.backButton, "Zur\u00FCck zur vorherigen Ansicht");
  setTitle(parts.cancelTimerButton, "Abbrechen");
  advance(0);
  EXPECT_TRUE(isAbout(inside(parts.titleLabel, page), rect(16, 43 + third, 289, 20 + third)));
  EXPECT_TRUE(isAbout(inside(parts.timerLabel, page), rect(16, 67 + 2 * third, 289, 67)));
  EXPECT_TRUE(isAbout(inside(parts.backButton, page), rect(0, 200, 160 + 2 * third, 50)));
  EXPECT_TRUE(
      isAbout(inside(parts.cancelTimerButton, page), rect(160 + 2 * third, 200, 160 + third, 50)));
}

TEST_F(PanelLayouts, TimerPageFromRightToLeft) {
  phone.setup.locale = "ar_SA";
  const Object page = this->page("CurrentTimerView", 321, 250);
  const TimerPage& parts = TimerPage::of(page);
  EXPECT_TRUE(isAbout(inside(parts.titleLabel, page), rect(16, 43 + third, 289, 20 + third)));
  EXPECT_TRUE(isAbout(inside(parts.backButton, page), rect(160 + 2 * third, 200, 160 + third, 50)));
  EXPECT_TRUE(isAbout(inside(parts.cancelTimerButton, page), rect(0, 200, 160 + 2 * third, 50)));
}

class ActionsLayout : public PanelLayouts {
 protected:
  // The four of the five that are shown, in order.
  std::vector<CGRect> boxes(Object page, bool isStart) {
    ActionsPage& parts = ActionsPage::of(page);
    send<void, "setHidden:">(parts.bluetoothButton.get(), isStart);
    send<void, "setHidden:">(parts.customVolumeButton.get(), !isStart);
    advance(0);
    std::vector<CGRect> all;
    for (const Object each :
         {parts.planeModeButton.get(), parts.dndButton.get(), parts.runShortcutButton.get(),
          isStart ? parts.customVolumeButton.get() : parts.bluetoothButton.get()})
      all.push_back(inside(each, page));
    return all;
  }
  // Equal to a pixel, side by side, with as much room on the left as on the right.
  static void expectEven(const std::vector<CGRect>& boxes, double left, double each, double top) {
    double start = left;
    for (const CGRect& box : boxes) {
      EXPECT_NEAR(box.origin.x, start, third);
      EXPECT_NEAR(box.size.width, each, third);
      EXPECT_NEAR(box.origin.y, top, 1e-9);
      EXPECT_NEAR(box.size.height, 60, 1e-9);
      start += each;
    }
  }
};

TEST_F(ActionsLayout, TopRow) {
  const Object page = this->page("OnTimerEndsSettingsView", 321, 250);
  const ActionsPage& parts = ActionsPage::of(page);
  EXPECT_EQ(inside(parts.backButton, page), rect(3, 3, 44, 44));
  EXPECT_TRUE(isAbout(inside(parts.titleLabel, page), rect(51, 15, 219, 20 + third)));
  EXPECT_EQ(inside(parts.toggleStartEndButton, page), rect(274, 3, 44, 44));
}

TEST_F(ActionsLayout, BoxesAreSpreadEvenlyInBothStates) {
  const Object page = this->page("OnTimerEndsSettingsView", 321, 250);
  expectEven(boxes(page, true), 16, 72.25, 95);
  expectEven(boxes(page, false), 16, 72.25, 95);
  expectEven(boxes(page, true), 16, 72.25, 95);
}

TEST_F(ActionsLayout, BoxesStayTogetherInLandscape) {
  const Object page = this->page("OnTimerEndsSettingsView", 568, 250);
  expectEven(boxes(page, true), 84, 100, 95);
  EXPECT_EQ(inside(ActionsPage::of(page).toggleStartEndButton, page), rect(521, 3, 44, 44));
}

TEST_F(ActionsLayout, BoxesStayBelowTheTopRow) {
  const Object page = this->page("OnTimerEndsSettingsView", 321, 200);
  expectEven(boxes(page, true), 16, 72.25, 70);
  resize(page, 321, 120);
  expectEven(boxes(page, true), 16, 72.25, 47);
}

TEST_F(ActionsLayout, ALongTitleStaysBetweenTheButtons) {
  const Object page = this->page("OnTimerEndsSettingsView", 321, 250);
  const ActionsPage& parts = ActionsPage::of(page);
  setText(parts.titleLabel, "Unmittelbar nachdem der Timer gestartet wurde");
  advance(0);
  EXPECT_TRUE(isAbout(inside(parts.titleLabel, page), rect(51, 15, 219, 20 + third)));
  EXPECT_EQ(inside(parts.toggleStartEndButton, page), rect(274, 3, 44, 44));
}

TEST_F(ActionsLayout, FromRightToLeft) {
  phone.setup.locale = "ar_SA";
  const Object page = this->page("OnTimerEndsSettingsView", 321, 250);
  const ActionsPage& parts = ActionsPage::of(page);
  EXPECT_EQ(inside(parts.backButton, page), rect(274, 3, 44, 44));
  EXPECT_EQ(inside(parts.toggleStartEndButton, page), rect(3, 3, 44, 44));
  std::vector<CGRect> found = boxes(page, true);
  expectEven({found.rbegin(), found.rend()}, 16, 72.25, 95);
}

// The hourglass is turned over at every touch.
TEST_F(ActionsLayout, ATurnedButtonStaysInItsPlace) {
  const Object page = this->page("OnTimerEndsSettingsView", 321, 250);
  const ActionsPage& parts = ActionsPage::of(page);
  send<void, "setTransform:">(parts.toggleStartEndButton.get(), CGAffineTransform{-1, 0, 0, -1});
  resize(page, 568, 250);
  EXPECT_TRUE(isAbout(frameOf(parts.toggleStartEndButton), rect(521, 3, 44, 44)));
}

class ImageButtonLayout : public PanelLayouts {
 protected:
  void SetUp() override {
    PanelLayouts::SetUp();
    button = objc::adopt(send<Object, "initWithFrame:">(objc_alloc(cls("ImageButton")), CGRect()));
    load("ImageButton", button);
    const ImageButton& its = parts();
    add(button, its.contentView);
    send<void, "setAutoresizingMask:">(its.contentView.get(), 18UL);
    send<void, "setFrame:">(its.contentView.get(), CGRect());
    add(host, button);
    setText(its.textLabel, "Start");
    send<void, "setFrame:">(button.get(), rect(0, 0, 160, 44));
    textWidth = send<CGSize, "intrinsicContentSize">(its.textLabel.get()).width;
    icon(20, 20);
  }
  void TearDown() override {
    button = {};
    PanelLayouts::TearDown();
  }
  const ImageButton& parts() const { return ImageButton::of(button.get()); }
  // Of those pixels; the phone has no file for it.
  void icon(double itsWidth, double itsHeight) {
    const auto image = objc::adopt(Object(objc_alloc_init(cls("UIImage"))));
    UIImage::of(image.get()).size = {itsWidth, itsHeight};
    send<void, "setImage:">(parts().iconImage.get(), image.get());
  }
  void hideIcon(bool hidden) {
    send<void, "setHidden:">(parts().iconImage.get(), hidden);
    send<void, "setPriority:">(parts().iconAspectRatioConstraint.get(), hidden ? 250.0F : 999.0F);
    send<void, "setPriority:">(parts().iconWidthConstraint.get(), hidden ? 999.0F : 250.0F);
    send<void, "setConstant:">(parts().labelLeadingConstraint.get(), hidden ? 0.0 : 6.0);
  }
  void expect(const CGRect& iconFrame, const CGRect& textFrame) {
    advance(0);
    EXPECT_TRUE(isAbout(inside(parts().iconImage, button), iconFrame));
    EXPECT_TRUE(isAbout(inside(parts().textLabel, button), textFrame));
  }

  Strong<Object> button;
  double textWidth = 0;
};

TEST_F(ImageButtonLayout, IconAndTextStandInTheMiddle) {
  const double start = (160 - 26 - textWidth) / 2;
  expect(rect(start, 12, 20, 20), rect(start + 26, 13, textWidth, 18));
}

TEST_F(ImageButtonLayout, WithoutTheIconTheTextStandsInTheMiddle) {
  const double start = (160 - textWidth) / 2;
  hideIcon(true);
  expect(rect(start, 12, 0, 20), rect(start, 13, textWidth, 18));
  hideIcon(false);
  expect(rect(start - 13, 12, 20, 20), rect(start + 13, 13, textWidth, 18));
}

TEST_F(ImageButtonLayout, TheIconIsSquareAndNoHigherThanTheButton) {
  send<void, "setFrame:">(button.get(), rect(0, 0, 160, 12));
  const double start = (160 - 18 - textWidth) / 2;
  expect(rect(start, 0, 12, 12), rect(start + 18, -3, textWidth, 18));
}

TEST_F(ImageButtonLayout, ALongTextLeavesTheIconItsRoom) {
  setText(parts().textLabel, "A text that is much too long for a button");
  expect(rect(0, 12, 20, 20), rect(26, 13, 134, 18));
}

TEST_F(ImageButtonLayout, ComplainsOfNoSize) {
  for (const CGRect frame : {rect(0, 0, 0, 0), rect(0, 0, 5, 5), rect(0, 0, 160, 0)}) {
    send<void, "setFrame:">(button.get(), frame);
    advance(0);
  }
}

TEST_F(ImageButtonLayout, FromRightToLeftTheIconIsOnTheRight) {
  phone.setup.locale = "ar_SA";
  const double start = (160 - 26 - textWidth) / 2;
  send<void, "setFrame:">(button.get(), rect(0, 0, 160, 45));
  send<void, "setFrame:">(button.get(), rect(0, 0, 160, 44));
  expect(rect(start + textWidth + 6, 12, 20, 20), rect(start, 13, textWidth, 18));
}

}  // namespace
}  // namespace sim
