#include "tests/uikit/UIKitTest.h"

namespace sim {
namespace {

class Application : public UIKitTest {};

Object url(const char* written) {
  return send<Object, "URLWithString:">(cls("NSURL"), string(written));
}

TEST_F(Application, UrlsAreCheckedAndTakenApart) {
  EXPECT_FALSE(url("not a url"));
  const Object shortcuts = url("shortcuts://create-shortcut");
  EXPECT_EQ(text(send<Object, "scheme">(shortcuts)), "shortcuts");
  EXPECT_EQ(text(send<Object, "host">(shortcuts)), "create-shortcut");
  EXPECT_EQ(description(shortcuts), "shortcuts://create-shortcut");
  EXPECT_TRUE((send<bool, "isEqual:">(shortcuts, url("shortcuts://create-shortcut"))));
  EXPECT_FALSE((send<Object, "scheme">(url("relative/path"))));
}

TEST_F(Application, TheNewestOfTheHighestWindowsTakesOverAsKey) {
  const auto first = shownWindow();
  {
    const auto second = shownWindow();
    EXPECT_TRUE((send<bool, "isKeyWindow">(second.get())));
    EXPECT_FALSE((send<bool, "isKeyWindow">(first.get())));
    send<void, "setHidden:">(second.get(), true);
    EXPECT_TRUE((send<bool, "isKeyWindow">(first.get())));
  }
}

TEST_F(Application, ConstraintsKeepWhatTheyAreToldButNotTheirViews) {
  const auto view = make("UIView");
  auto other = make("UIView");
  const Object constraint =
      send<Object, "constraintWithItem:attribute:relatedBy:toItem:attribute:multiplier:constant:">(
          cls("NSLayoutConstraint"), view.get(), 8L, 0L, other.get(), 8L, 1.0, 50.0);
  EXPECT_EQ((send<double, "constant">(constraint)), 50);
  EXPECT_EQ((send<float, "priority">(constraint)), 1000);
  send<void, "setPriority:">(constraint, 250.0f);
  EXPECT_EQ((send<float, "priority">(constraint)), 250);
  {
    const objc::AutoreleasePool pool;
    EXPECT_EQ((send<Object, "secondItem">(constraint)), other.get());
    other = nullptr;
  }
  EXPECT_FALSE((send<Object, "secondItem">(constraint)));
  EXPECT_EQ((send<Object, "firstItem">(constraint)), view.get());
}

}  // namespace
}  // namespace sim
