#include "simulator/springboard/AppWindow.h"

#include <utility>

#include "simulator/foundation/Kind.h"
#include "simulator/foundation/Values.h"
#include "simulator/springboard/SBHomeBar.h"
#include "simulator/uikit/application/UIWindow.h"
#include "simulator/uikit/views/ViewBuilding.h"

namespace sim {
namespace {

using objc::Object;

// Autoresizing masks.
constexpr unsigned long widthAndHeight = 1 << 1 | 1 << 4,
                        middleOfTheBottom = 1 << 0 | 1 << 2 | 1 << 3;

}  // namespace

bool AppWindow::open(std::function<void()> goHome) {
  constexpr double windowLevel = 10;  // above the home screen, below the lock screen
  if (window_ || UIWindow::cls() == nullptr) return false;
  window_ = UIWindow::make();
  UIWindow::of(window_.get()).isOfTheSystem = true;
  const auto controller = objc::adopt(objc::send<Object, "new">(objc_getClass("UIViewController")));
  objc::send<void, "setWindowLevel:">(window_.get(), windowLevel);
  objc::send<void, "setRootViewController:">(window_.get(), controller.get());
  objc::send<void, "setHidden:">(window_.get(), false);
  addHomeBar(std::move(goHome));
  return true;
}

void AppWindow::open(const char* viewClass) {
  if (objc_getClass(viewClass) == nullptr || !open([this] { close(); })) return;
  view_ = objc::adopt(objc::send<Object, "new">(objc_getClass(viewClass)));
  insert(view_.get(), 0);
}

void AppWindow::close() {
  view_ = {};
  const auto window = std::exchange(window_, {});
  objc::send<void, "setRootViewController:">(window.get(), nullptr);
  objc::send<void, "setHidden:">(window.get(), true);
}

Object AppWindow::root() const {
  return objc::send<Object, "view">(objc::send<Object, "rootViewController">(window_.get()));
}

void AppWindow::insert(Object view, long index) {
  setFrame(view, {{}, sizeOf(root())});
  objc::send<void, "setAutoresizingMask:">(view, widthAndHeight);
  objc::send<void, "insertSubview:atIndex:">(root(), view, index);
}

void AppWindow::addHomeBar(std::function<void()> goHome) {
  constexpr CGSize area = {200, 24}, line = {134, 5};  // points
  const auto bar = addView(root(), "_SBHomeBar");
  if (!bar) return;
  const CGSize size = sizeOf(root());
  setFrame(bar, {{(size.width - area.width) / 2, size.height - area.height}, area});
  objc::send<void, "setAutoresizingMask:">(bar.get(), middleOfTheBottom);
  const auto drawn = addView(bar.get(), "UIView");
  setFrame(drawn, {{(area.width - line.width) / 2, area.height - 8 - line.height}, line});
  fill(drawn, whiteColor(1), line.height / 2);
  objc::send<void, "setUserInteractionEnabled:">(drawn.get(), false);
  objc::send<void, "setAccessibilityLabel:">(bar.get(), string("Home"));
  SBHomeBar::of(bar.get()).goHome = std::move(goHome);
}

}  // namespace sim
