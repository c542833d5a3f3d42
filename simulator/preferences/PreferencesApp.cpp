#include "simulator/preferences/PreferencesApp.h"

#include <utility>

#include "simulator/foundation/Values.h"
#include "simulator/machine/Phone.h"
#include "simulator/preferences/Keyboard.h"
#include "simulator/preferences/Pages.h"
#include "simulator/preferences/Style.h"
#include "simulator/preferences/SystemWords.h"
#include "simulator/preferences/TapArea.h"
#include "simulator/uikit/application/UIWindow.h"
#include "simulator/uikit/views/ViewBuilding.h"

namespace sim {
namespace {

using objc::Object;

// Autoresizing masks.
constexpr unsigned long wide = 1 << 1, tall = 1 << 4, centred = 1 << 0 | 1 << 2, atBottom = 1 << 3;

void setMask(Object view, unsigned long mask) {
  objc::send<void, "setAutoresizingMask:">(view, mask);
}

}  // namespace

PreferencesApp& PreferencesApp::current() {
  return Phone::current().state<PreferencesApp>();
}

void PreferencesApp::open() {
  constexpr double windowLevel = 10;  // above the home screen, below the lock screen
  if (window_ || UIWindow::cls() == nullptr || PageView::cls() == nullptr) return;
  folder_ = PaneFolder::read();
  window_ = UIWindow::make();
  UIWindow::of(window_.get()).isOfTheSystem = true;
  const auto controller = objc::adopt(objc::send<Object, "new">(objc_getClass("UIViewController")));
  objc::send<void, "setWindowLevel:">(window_.get(), windowLevel);
  objc::send<void, "setRootViewController:">(window_.get(), controller.get());
  objc::send<void, "setHidden:">(window_.get(), false);
  push([this] { return rootPage(folder_, *this); });
  addHomeBar(objc::send<Object, "view">(controller.get()));
}

void PreferencesApp::close() {
  if (!window_) return;
  stopEditing();
  levels_.clear();
  const auto window = std::exchange(window_, {});
  objc::send<void, "setRootViewController:">(window.get(), nullptr);
  objc::send<void, "setHidden:">(window.get(), true);
}

Object PreferencesApp::page() const {
  return levels_.empty() ? Object() : levels_.back().view.get();
}

void PreferencesApp::push(MakePage make) {
  if (!window_) return;
  stopEditing();
  levels_.push_back(
      {objc::adopt(objc::send<Object, "new">(Object(reinterpret_cast<id>(PageView::cls())))),
       std::move(make)});
  showTop();
}

void PreferencesApp::pop() {
  if (levels_.size() < 2) return;
  stopEditing();
  const auto last = std::move(levels_.back());
  levels_.pop_back();
  objc::send<void, "removeFromSuperview">(last.view.get());
  showTop();
}

// Below the bar at the bottom, which leads home.
void PreferencesApp::showTop() {
  const Object root =
      objc::send<Object, "view">(objc::send<Object, "rootViewController">(window_.get()));
  Level& top = levels_.back();
  for (const Level& level : levels_)
    objc::send<void, "setHidden:">(level.view.get(), &level != &top);
  show(top);
  if (objc::send<Object, "superview">(top.view.get())) return;
  setFrame(top.view.get(), {{}, sizeOf(root)});
  setMask(top.view.get(), wide | tall);
  objc::send<void, "insertSubview:atIndex:">(root, top.view.get(), long(levels_.size()) - 1);
}

void PreferencesApp::show(Level& level) {
  PageView::of(level.view.get()).show(level.make(), [this] { pop(); });
}

void PreferencesApp::refresh() {
  if (!levels_.empty()) show(levels_.back());
}

void PreferencesApp::openPane(const std::string& name, const std::string& back) {
  if (folder_.named(name) == nullptr) return;
  push([this, name, back] { return panePage(*folder_.named(name), back, *this); });
}

// A tap on it, or a swipe that begins there, closes the application.
void PreferencesApp::addHomeBar(Object root) {
  constexpr CGSize area = {200, 24}, line = {134, 5};  // points
  const auto bar = addView(root, "_SettingsTapArea");
  if (!bar) return;
  const CGSize size = sizeOf(root);
  setFrame(bar.get(), {{(size.width - area.width) / 2, size.height - area.height}, area});
  setMask(bar.get(), centred | atBottom);
  const auto drawn = addView(bar.get(), "UIView");
  setFrame(drawn.get(), {{(area.width - line.width) / 2, area.height - 8 - line.height}, line});
  fill(drawn.get(), whiteColor(1), line.height / 2);
  objc::send<void, "setUserInteractionEnabled:">(drawn.get(), false);
  objc::send<void, "setAccessibilityLabel:">(bar.get(), string("Home"));
  TapArea::of(bar.get()).onTap([this] { close(); });
  TapArea::of(bar.get()).onSwipe([this] { close(); });
}

void PreferencesApp::edit(const std::string& key, const std::string& text,
                          std::function<void(const std::string&)> done) {
  if (editing_ && editing_->key == key) return;
  stopEditing();
  editing_ = Editing{key, text, text, std::move(done)};
  showKeyboard();
  refresh();
  PageView::of(page()).scrollToTypedRow();
}

void PreferencesApp::showKeyboard() {
  const Object root =
      objc::send<Object, "view">(objc::send<Object, "rootViewController">(window_.get()));
  keyboard_ = addView(root, "_SettingsKeyboard");
  if (!keyboard_) return;
  const CGSize size = sizeOf(root);
  setFrame(keyboard_.get(), {{0, size.height - Keyboard::height}, {size.width, Keyboard::height}});
  setMask(keyboard_.get(), wide | atBottom);
  Keyboard::of(keyboard_.get()).typed = [this](const std::string& key) { type(key); };
  PageView::of(page()).setCovered(Keyboard::height);
}

void PreferencesApp::type(const std::string& key) {
  if (!editing_) return;
  if (key == Keyboard::done) return stopEditing();
  if (key == Keyboard::remove)
    removeLastCharacter(editing_->text);
  else
    editing_->text += key;
  refresh();
}

void PreferencesApp::stopEditing() {
  if (!editing_) return;
  const Editing last = *std::exchange(editing_, std::nullopt);
  objc::send<void, "removeFromSuperview">(keyboard_.get());
  keyboard_ = {};
  PageView::of(page()).setCovered(0);
  if (last.text == last.before)
    refresh();
  else
    last.done(last.text);
}

std::optional<std::string> PreferencesApp::draftOf(const std::string& key) const {
  return editing_ && editing_->key == key ? std::optional(editing_->text) : std::nullopt;
}

}  // namespace sim
