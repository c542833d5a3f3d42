#include "simulator/preferences/Keyboard.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <utility>

#include "simulator/foundation/Values.h"
#include "simulator/preferences/Style.h"
#include "simulator/preferences/TapArea.h"
#include "simulator/standin/StandIn.h"
#include "simulator/uikit/views/ViewBuilding.h"

namespace sim {
namespace {

using objc::Object;

// Faces of keys, one a word; a row a line.
constexpr std::array<std::string_view, 4> letters = {"q w e r t y u i o p", "a s d f g h j k l",
                                                     "⇧ z x c v b n m ⌫", "123 space ' . done"};
constexpr std::array<std::string_view, 4> digits = {"1 2 3 4 5 6 7 8 9 0", "- / : ( ) & @ + _",
                                                    "# ! ? , * = % ⌫", "abc space ' . done"};

struct Special {
  std::string_view face;
  const char* spoken;
  double width;  // of the usual
};
constexpr std::array<Special, 6> specials = {{{"⇧", "shift", 1.4},
                                              {"⌫", "delete", 1.4},
                                              {"123", "digits", 1.8},
                                              {"abc", "letters", 1.8},
                                              {"space", "space", 4},
                                              {"done", "done", 2}}};

const Special* specialOf(std::string_view face) {
  const auto found = std::find_if(specials.begin(), specials.end(),
                                  [face](const Special& each) { return each.face == face; });
  return found == specials.end() ? nullptr : &*found;
}

std::vector<std::string> wordsOf(std::string_view line) {
  std::vector<std::string> words(1);
  for (const char each : line) {
    if (each == ' ')
      words.emplace_back();
    else
      words.back() += each;
  }
  return words;
}

}  // namespace

Object Keyboard::initWithFrame(CGRect frame) {
  const Object made = super<Object, "initWithFrame:">(frame);
  if (!made) return nullptr;
  fill(made, style::card());
  makeKeys();
  return made;
}

void Keyboard::makeKeys() {
  for (const auto& row : rows_)
    for (const Key& key : row) objc::send<void, "removeFromSuperview">(key.area.get());
  rows_.clear();
  for (const std::string_view line : showsDigits_ ? digits : letters) {
    rows_.emplace_back();
    for (std::string face : wordsOf(line)) {
      if (isShifted_ && face.size() == 1) face[0] = char(std::toupper(face[0]));
      addKey(face);
    }
  }
  objc::send<void, "setNeedsLayout">(self());
}

void Keyboard::addKey(std::string_view face) {
  constexpr double radius = 5;  // points
  constexpr unsigned long fillsArea = 1 << 1 | 1 << 4;
  constexpr long center = 1;
  const Special* special = specialOf(face);
  const auto area = addView(Object(self()), "_SettingsTapArea");
  if (!area) return;
  fill(area.get(), special == nullptr ? style::pressedCard() : style::line(), radius);
  const auto label =
      addLabel(area.get(), {.points = special == nullptr ? 20.0 : 15.0, .alignment = center});
  setText(label.get(), string(face));
  setFrame(label.get(), {{}, sizeOf(area.get())});
  objc::send<void, "setAutoresizingMask:">(label.get(), fillsArea);
  objc::send<void, "setAccessibilityLabel:">(
      area.get(), string(special == nullptr ? face : std::string_view(special->spoken)));
  TapArea::of(area.get()).onTap([this, face = std::string(face)] { press(face); });
  rows_.back().push_back({area, special == nullptr ? 1 : special->width});
}

void Keyboard::press(const std::string& face) {
  const bool changesKeys = face == "⇧" || face == "123" || face == "abc";
  if (face == "⇧") isShifted_ = !isShifted_;
  if (face == "123" || face == "abc") showsDigits_ = face == "123";
  if (changesKeys) return makeKeys();
  const auto tell = typed;
  const bool wasShifted = std::exchange(isShifted_, false);
  if (wasShifted) makeKeys();
  tell(face == "space" ? " " : face == "done" ? done : face == "⌫" ? remove : face);
}

void Keyboard::layoutSubviews() {
  constexpr double gap = 6, side = 4, keyHeight = 46, top = 10;  // points
  super<void, "layoutSubviews">();
  const double room = sizeOf(Object(self())).width - 2 * side;
  const double usual = room / 10 - gap;
  double y = top;
  for (const auto& row : rows_) {
    double width = -gap;
    for (const Key& key : row) width += key.width * usual + gap;
    double x = side + (room - width) / 2;
    for (const Key& key : row) {
      setFrame(key.area.get(), {{x, y}, {key.width * usual, keyHeight}});
      x += key.width * usual + gap;
    }
    y += keyHeight + gap;
  }
}

void Keyboard::registerClass() {
  StandIn<Keyboard>("Preferences", "_SettingsKeyboard", "UIView")
      .method<"initWithFrame:", &Keyboard::initWithFrame>()
      .method<"layoutSubviews", &Keyboard::layoutSubviews>()
      .finish();
}

void removeLastCharacter(std::string& text) {
  constexpr unsigned char mask = 0xc0, continued = 0x80;
  while (!text.empty()) {
    const auto last = static_cast<unsigned char>(text.back());
    text.pop_back();
    if ((last & mask) != continued) return;
  }
}

}  // namespace sim
