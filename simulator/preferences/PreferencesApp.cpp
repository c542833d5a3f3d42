#include "simulator/preferences/PreferencesApp.h"

#include <utility>

#include "simulator/machine/Phone.h"
#include "simulator/preferences/Keyboard.h"
#include "simulator/preferences/Pages.h"
#include "simulator/uikit/views/ViewBuilding.h"

namespace sim {
namespace {

using objc::Object;

constexpr unsigned long wideAtTheBottom = 1 << 1 | 1 << 3;  // an autoresizing mask

}  // namespace

PreferencesApp& PreferencesApp::current() {
  return Phone::current().state<PreferencesApp>();
}

void PreferencesApp::open() {
  if (PageView::cls() == nullptr || !window_.open([this] { close(); })) return;
  folder_ = PaneFolder::read();
  push([this] { return rootPage(folder_, *this); });
}

void PreferencesApp::close() {
  if (!isOpen()) return;
  stopEditing();
  levels_.clear();
  window_.close();
}

Object PreferencesApp::page() const {
  return levels_.empty() ? Object() : levels_.back().view.get();
}

void PreferencesApp::push(MakePage make) {
  if (!isOpen()) return;
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
  Level& top = levels_.back();
  for (const Level& level : levels_)
    objc::send<void, "setHidden:">(level.view.get(), &level != &top);
  show(top);
  if (!objc::send<Object, "superview">(top.view.get()))
    window_.insert(top.view.get(), long(levels_.size()) - 1);
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
  const Object root = window_.root();
  keyboard_ = addView(root, "_SettingsKeyboard");
  if (!keyboard_) return;
  const CGSize size = sizeOf(root);
  setFrame(keyboard_.get(), {{0, size.height - Keyboard::height}, {size.width, Keyboard::height}});
  objc::send<void, "setAutoresizingMask:">(keyboard_.get(), wideAtTheBottom);
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
