#include "simulator/springboard/StatusBar.h"

#include "objc/Message.h"
#include "simulator/foundation/Kind.h"
#include "simulator/machine/Phone.h"
#include "simulator/springboard/StatusBarView.h"
#include "simulator/uikit/application/PreRender.h"
#include "simulator/uikit/application/UIWindow.h"

namespace sim {
namespace {

struct StatusBar {
  objc::Object window;  // owned, and never given up
  objc::Object view;    // StatusBarView; not owned: its window owns it
};

StatusBar& statusBar() {
  return Phone::current().state<StatusBar>();
}

StatusBarView* shown() {
  return stateOf<StatusBarView>(statusBar().view);
}

}  // namespace

void showStatusBar() {
  constexpr double windowLevel = 1095;  // above Control Center, below alerts
  constexpr unsigned long flexibleWidth = 1 << 1;
  if (UIWindow::cls() == nullptr || StatusBarView::cls() == nullptr) return;
  auto window = UIWindow::make();
  UIWindow::of(window.get()).isOfTheSystem = true;
  const auto view = StatusBarView::make();
  const CGRect screen = objc::send<CGRect, "bounds">(window.get());
  objc::send<void, "setFrame:">(view.get(), CGRect{{}, {screen.size.width, StatusBarView::height}});
  objc::send<void, "setAutoresizingMask:">(view.get(), flexibleWidth);
  objc::send<void, "addSubview:">(window.get(), view.get());
  objc::send<void, "setUserInteractionEnabled:">(window.get(), false);
  objc::send<void, "setWindowLevel:">(window.get(), windowLevel);
  objc::send<void, "setHidden:">(window.get(), false);
  statusBar() = {window.detach(), view.get()};
  addPreRenderHook([] {
    shown()->showTime();
    shown()->showState();
  });
}

void setStatusBarShowsTime(bool shows) {
  if (StatusBarView* view = shown()) objc::send<void, "setHidden:">(view->time.get(), !shows);
}

}  // namespace sim
