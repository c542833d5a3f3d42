#include "simulator/springboard/HomeIcons.h"

#include <array>
#include <map>
#include <string>

#include "objc/Message.h"
#include "simulator/coregraphics/Geometry.h"
#include "simulator/machine/Phone.h"
#include "simulator/springboard/Shapes.h"

namespace sim {
namespace {

using objc::Object;
using objc::Strong;

// A symbol on a run of two colours.
struct Icon {
  std::string_view title;
  Rgb top, bottom;
  const char* filled;  // in a square of iconSize; empty: nothing
  const char* lines;   // likewise
  Rgb ink;
};

constexpr Rgb white = {255, 255, 255}, dark = {58, 58, 64};

constexpr std::array<Icon, homeIconCount + dockIconCount> icons = {{
    {"Calendar",
     {255, 255, 255},
     {240, 240, 244},
     "R 14 12 32 8 2 R 15 26 6 6 1 R 27 26 6 6 1 R 39 26 6 6 1 R 15 38 6 6 1 R 27 38 6 6 1",
     "",
     {235, 77, 75}},
    {"Photos",
     {255, 255, 255},
     {236, 238, 244},
     "O 30 19 8 O 41 30 8 O 30 41 8 O 19 30 8",
     "",
     {246, 166, 64}},
    {"Camera",
     {209, 211, 217},
     {160, 163, 172},
     "",
     "M 22 20 L 25 15 L 35 15 L 38 20 L 46 20 L 46 44 L 14 44 L 14 20 Z O 30 32 7",
     dark},
    {"Clock", {44, 44, 48}, {20, 20, 24}, "", "O 30 30 20 M 30 18 L 30 30 L 39 34", white},
    {"Weather",
     {88, 168, 245},
     {40, 108, 216},
     "O 24 36 8 O 34 31 10 O 42 37 7 R 24 36 18 8 0",
     "",
     white},
    {"Notes",
     {255, 214, 92},
     {250, 240, 214},
     "",
     "M 15 28 L 45 28 M 15 36 L 45 36 M 15 44 L 34 44",
     {150, 140, 120}},
    {"Reminders",
     {255, 255, 255},
     {238, 240, 245},
     "O 17 19 3.5 O 17 30 3.5 O 17 41 3.5",
     "M 25 19 L 45 19 M 25 30 L 45 30 M 25 41 L 45 41",
     {84, 132, 232}},
    {"Settings", {148, 150, 158}, {98, 100, 108}, "", "O 30 30 15 O 30 30 6", white},
    {"Phone",
     {106, 222, 122},
     {48, 184, 76},
     "M 19 14 L 25 14 L 28 24 L 24 27 C 26 32 29 35 34 37 L 37 33 L 46 36 L 46 42 C 45 46 40 47 36 "
     "46 C 25 43 17 34 15 23 C 14 19 15 15 19 14 Z",
     "",
     white},
    {"Mail",
     {98, 190, 252},
     {34, 116, 232},
     "",
     "M 13 19 L 47 19 L 47 42 L 13 42 Z M 13 19 L 30 32 L 47 19",
     white},
    {"Browser",
     {245, 248, 252},
     {208, 224, 240},
     "M 44 16 L 33 33 L 27 27 Z",
     "O 30 30 18 M 16 44 L 27 27 M 16 44 L 33 33",
     {38, 120, 220}},
    {"Music",
     {252, 96, 124},
     {236, 42, 82},
     "O 21 42 5 O 38 38 5 M 24 18 L 43 13 L 43 19 L 24 24 Z",
     "M 25 42 L 25 20 M 42 38 L 42 16",
     white},
}};

struct Openers {
  std::map<std::string, std::function<void()>, std::less<>> all;  // by the icon's title
};

auto& openers() {
  return Phone::current().state<Openers>().all;
}

}  // namespace

std::string_view homeIconTitle(std::size_t index) {
  return icons.at(index).title;
}

void onIconTap(std::string_view title, std::function<void()> opens) {
  openers()[std::string(title)] = std::move(opens);
}

void openApplication(std::size_t index) {
  const auto found = openers().find(homeIconTitle(index));
  if (found != openers().end()) found->second();
}

Strong<Object> makeHomeIcon(std::size_t index) {
  constexpr double radius = 13.5, lineWidth = 2.5;  // points
  const Icon& icon = icons.at(index);
  const char* kind = openers().contains(icon.title) ? "UIControl" : "UIView";
  auto view = objc::adopt(objc::send<Object, "new">(objc_getClass(kind)));
  const Object layer = objc::send<Object, "layer">(view.get());
  const auto ground = objc::adopt(objc::send<Object, "new">(objc_getClass("CAGradientLayer")));
  objc::send<void, "setFrame:">(ground.get(), CGRect{{}, {iconSize, iconSize}});
  objc::send<void, "setCornerRadius:">(ground.get(), radius);
  setGradient(ground.get(), {icon.top, icon.bottom});
  objc::send<void, "addSublayer:">(layer, ground.get());
  addShapeLayer(layer, icon.filled, {coreColor(icon.ink), nullptr});
  addShapeLayer(layer, icon.lines, {nullptr, coreColor(icon.ink), lineWidth});
  return view;
}

}  // namespace sim
