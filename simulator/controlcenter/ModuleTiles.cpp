#include "simulator/controlcenter/ModuleTiles.h"

#include <utility>

#include "simulator/controlcenter/CCUIContinuousSliderView.h"
#include "simulator/controlcenter/CCUIRoundButton.h"
#include "simulator/controlcenter/Switches.h"
#include "simulator/foundation/Kind.h"
#include "simulator/foundation/Values.h"
#include "simulator/mediaremote/AudioSystem.h"
#include "simulator/springboard/SystemNames.h"
#include "simulator/standin/Versions.h"
#include "simulator/uikit/application/UIScreen.h"
#include "simulator/uikit/controls/UIControl.h"
#include "simulator/uikit/controls/UISlider.h"
#include "simulator/uikit/views/LayoutDirection.h"
#include "simulator/uikit/views/ViewBuilding.h"

namespace sim {
namespace {

using objc::Object;

constexpr double plateOff = 0.15;  // of white

Object blue() {
  return rgbColor(0.04, 0.52, 1);
}

void addSwitch(Object tile, CGRect frame, CCUIRoundButton::Use use, TileControls& controls) {
  const auto button = addView(tile, "CCUIRoundButton");
  setFrame(button, frame);
  if (auto* state = stateOf<CCUIRoundButton>(button.get())) {
    state->setUse(std::move(use));
    controls.switches.push_back(button.get());
  }
}

void addRadios(Object tile, TileControls& controls) {
  constexpr double size = 54, near = 15, far = 84;  // points
  const bool isRightToLeft = interfaceIsRightToLeft();
  const double first = isRightToLeft ? far : near, second = isRightToLeft ? near : far;
  const auto add = [&](CGPoint at, const char* name, ModuleSymbol symbol, Object color,
                       const Switch& its) {
    addSwitch(tile, {at, {size, size}},
              {systemName(name),
               symbol,
               {{}, {size, size}},
               size / 2,
               color,
               whiteColor(1),
               plateOff,
               its.isOn,
               its.turn},
              controls);
  };
  add({first, near}, "Airplane Mode", ModuleSymbol::airplane, rgbColor(1, 0.62, 0.04),
      airplaneSwitch());
  add({second, near}, "Mobile Data", ModuleSymbol::mobileData, rgbColor(0.2, 0.78, 0.35),
      mobileDataSwitch());
  add({first, far}, "Wi-Fi", ModuleSymbol::wifi, blue(), wifiSwitch());
  add({second, far}, "Bluetooth", ModuleSymbol::bluetooth, blue(), bluetoothSwitch());
}

Object addLevel(Object tile, ModuleSymbol symbol, CGSize size, const char* name, float value) {
  const auto level = addView(tile, "CCUIContinuousSliderView");
  setFrame(level, {{}, size});
  objc::send<void, "setAccessibilityLabel:">(level.get(), string(systemName(name)));
  objc::send<void, "setValue:">(level.get(), value);
  addModuleSymbol(tile, symbol, {size.width / 2, size.height - 30}, rgbColor(0.4, 0.4, 0.43));
  return level.get();
}

void addSlider(Object tile, ModuleSymbol symbol, CGSize size, TileControls& controls) {
  const auto listen = [](Object slider, SEL action) {
    const Object overlay = objc::send<Object, "nextResponder">(
        objc::send<Object, "superview">(objc::send<Object, "superview">(slider)));
    objc::send<void, "addTarget:action:forControlEvents:">(slider, overlay, action,
                                                           UIControl::valueChanged);
  };
  if (symbol == ModuleSymbol::volume) {
    controls.volume = addLevel(tile, symbol, size, "Volume", AudioSystem::current().volume());
    listen(controls.volume, objc::selector<"_volumeDidSlide:">());
  } else {
    listen(addLevel(tile, symbol, size, "Brightness", brightness()),
           objc::selector<"_brightnessDidSlide:">());
  }
}

void addFocus(Object tile, CGSize size, TileControls& controls) {
  constexpr double diameter = 40, left = 15;  // points
  const double middle = size.height / 2;
  const bool isRightToLeft = interfaceIsRightToLeft();
  const Switch its = focusSwitch();
  addSwitch(tile, {{}, size},
            {systemName("Do Not Disturb"),
             ModuleSymbol::focus,
             {{isRightToLeft ? size.width - left - diameter : left, middle - diameter / 2},
              {diameter, diameter}},
             diameter / 2,
             rgbColor(0.37, 0.36, 0.9),
             whiteColor(1),
             plateOff,
             its.isOn,
             its.turn},
            controls);
  constexpr long toTheRight = 2;
  const auto title = addLabel(
      tile,
      {.points = 15, .isBold = true, .alignment = isRightToLeft ? toTheRight : 0, .lines = 2});
  const double x = isRightToLeft ? 10 : left + diameter + 10;
  setFrame(title, {{x, middle - 20}, {size.width - diameter - left - 20, diameter}});
  controls.focusLabel = title.get();
}

void addButton(Object tile, ModuleSymbol symbol, CGSize size, TileControls& controls) {
  constexpr double ofWhatDoesNothing = 0.3;
  const auto add = [&](const char* name, Object ink, const Switch& its) {
    addSwitch(
        tile, {{}, size},
        {systemName(name), symbol, {{}, size}, 0, whiteColor(0.9), ink, 0, its.isOn, its.turn},
        controls);
  };
  if (symbol == ModuleSymbol::orientationLock)
    add("Rotation Lock", rgbColor(1, 0.23, 0.19), rotationLockSwitch());
  else if (symbol == ModuleSymbol::torch)
    add("Flashlight", blue(), torchSwitch());
  else
    addModuleSymbol(tile, symbol, {size.width / 2, size.height / 2}, whiteColor(ofWhatDoesNothing));
}

}  // namespace

void fillTile(Object tile, const ModulePlace& place, CGSize size, TileControls& controls) {
  const auto symbol = ModuleSymbol(&place - modulePlaces().data());
  switch (place.kind) {
    case ModuleKind::connectivity:
      return addRadios(tile, controls);
    case ModuleKind::slider:
      return addSlider(tile, symbol, size, controls);
    case ModuleKind::wide:
      return addFocus(tile, size, controls);
    case ModuleKind::button:
      return addButton(tile, symbol, size, controls);
    case ModuleKind::media:
      return;
  }
}

void refreshTiles(const TileControls& controls) {
  for (const Object button : controls.switches) CCUIRoundButton::of(button).refresh();
  constexpr int firstWithFocus = 15;  // before, Do Not Disturb was the only mode
  const bool hasFocus = systemMajor() >= firstWithFocus;
  const char* focus = hasFocus && !focusSwitch().isOn() ? "Focus" : "Do Not Disturb";
  setText(controls.focusLabel, string(systemName(focus)));
}

}  // namespace sim
