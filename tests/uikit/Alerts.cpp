#include "simulator/uikit/alerts/AlertView.h"
#include "simulator/uikit/alerts/UIAlertController.h"
#include "tests/uikit/UIKitTest.h"

namespace sim {
namespace {

class Alerts : public UIKitTest {
 protected:
  // An alert with two buttons, over the window's root.
  Object show(Object window) {
    const auto root = objc::adopt(send<Object, "new">(cls("UIViewController")));
    send<void, "setRootViewController:">(window, root.get());
    const Object alert = send<Object, "alertControllerWithTitle:message:preferredStyle:">(
        cls("UIAlertController"), string("Not installed"), string("Get it"), 1L);
    for (const char* title : {"Copy", "Later"}) {
      const auto handler = objc::block<void(Object)>([this](Object action) {
        pressed = text(send<Object, "title">(action));
        shownWhenHandled = bool(UIAlertController::shown());
      });
      send<void, "addAction:">(alert, send<Object, "actionWithTitle:style:handler:">(
                                          cls("UIAlertAction"), string(title), 0L, handler.get()));
    }
    send<void, "presentViewController:animated:completion:">(root.get(), alert, true,
                                                             objc::Block<void()>(nullptr));
    return alert;
  }

  std::string pressed;
  bool shownWhenHandled = true;
};

TEST_F(Alerts, LieOverTheRest) {
  const auto window = shownWindow();
  EXPECT_FALSE(UIAlertController::shown());
  const Object alert = show(window);
  EXPECT_EQ(UIAlertController::shown(), alert);
  EXPECT_EQ(text(send<Object, "title">(alert)), "Not installed");
  EXPECT_EQ(text(send<Object, "message">(alert)), "Get it");
  EXPECT_EQ((send<unsigned long, "count">(send<Object, "actions">(alert))), 2U);
  send<void, "dismissViewControllerAnimated:completion:">(alert, false,
                                                          objc::Block<void()>(nullptr));
}

TEST_F(Alerts, AreGoneWhenTheHandlerRuns) {
  const auto window = shownWindow();
  UIAlertController& alert = UIAlertController::of(show(window));
  EXPECT_FALSE(alert.actionTitled("Never"));
  alert.press(alert.actionTitled("Later"));
  EXPECT_EQ(pressed, "");
  advance(0);
  EXPECT_EQ(pressed, "Later");
  EXPECT_FALSE(shownWhenHandled);
}

TEST_F(Alerts, HigherWindowsLieAboveLowerOnes) {
  const auto high = make("UIWindow", rect(0, 0, 390, 844));
  send<void, "setWindowLevel:">(high.get(), 2001.0);
  send<void, "makeKeyAndVisible">(high.get());
  const auto low = shownWindow();
  const Object alert = show(high);
  const Object below = show(low);
  EXPECT_EQ(UIAlertController::shown(), alert);
  for (const Object each : {alert, below})
    send<void, "dismissViewControllerAnimated:completion:">(each, false,
                                                            objc::Block<void()>(nullptr));
}

TEST_F(Alerts, AreCardsInTheMiddleOfTheScreen) {
  const auto window = shownWindow();
  const Object alert = show(window);
  const AlertView& view = AlertView::of(send<Object, "view">(alert));
  advance(0);
  const CGRect card = frameOf(view.card);
  EXPECT_EQ(card.size.width, 270);
  EXPECT_DOUBLE_EQ(card.origin.x, 60);
  EXPECT_DOUBLE_EQ(card.origin.y + card.size.height / 2, 422);
  EXPECT_LT(frameOf(view.title).origin.y, frameOf(view.message).origin.y);
  EXPECT_EQ(frameOf(view.buttons[1]), rect(135, card.size.height - 44, 135, 44));
  send<void, "dismissViewControllerAnimated:completion:">(alert, false,
                                                          objc::Block<void()>(nullptr));
}

TEST_F(Alerts, LongTitlesGoBelowEachOtherAndCancelLast) {
  const auto window = shownWindow();
  const auto root = objc::adopt(send<Object, "new">(cls("UIViewController")));
  send<void, "setRootViewController:">(window.get(), root.get());
  const Object alert = send<Object, "alertControllerWithTitle:message:preferredStyle:">(
      cls("UIAlertController"), string("Title"), Object(), 1L);
  long style = 1;  // cancel
  for (const char* title : {"Later", "Create a shortcut"})
    send<void, "addAction:">(
        alert, send<Object, "actionWithTitle:style:handler:">(cls("UIAlertAction"), string(title),
                                                              std::exchange(style, 0),
                                                              objc::Block<void(Object)>(nullptr)));
  send<void, "presentViewController:animated:completion:">(root.get(), alert, false,
                                                           objc::Block<void()>(nullptr));
  advance(0);
  const AlertView& view = AlertView::of(send<Object, "view">(alert));
  const double height = frameOf(view.card).size.height;
  EXPECT_EQ(frameOf(view.buttons[0]).size, (CGSize{270, 44}));
  EXPECT_DOUBLE_EQ(frameOf(view.buttons[0]).origin.y, height - 44);
  EXPECT_DOUBLE_EQ(frameOf(view.buttons[1]).origin.y, height - 88);
  send<void, "dismissViewControllerAnimated:completion:">(alert, false,
                                                          objc::Block<void()>(nullptr));
}

TEST_F(Alerts, NeedActions) {
  const Object alert = send<Object, "alertControllerWithTitle:message:preferredStyle:">(
      cls("UIAlertController"), string("Title"), string("Text"), 1L);
  EXPECT_DEATH((send<void, "addAction:">(alert, Object())), "addAction:\\]: object cannot be nil");
}

TEST_F(Alerts, TheirButtonsCanBeTouched) {
  const auto window = shownWindow();
  const AlertView& view = AlertView::of(send<Object, "view">(show(window)));
  advance(0);
  EXPECT_EQ(tap(view.buttons[1]), "");
  advance(0);
  EXPECT_EQ(pressed, "Later");
}

}  // namespace
}  // namespace sim
