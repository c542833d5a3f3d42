// ControlCenterUIKit: a switch of Control Center's, coloured while what it stands for is on.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "objc/Class.h"
#include "simulator/controlcenter/ModuleSymbols.h"
#include "simulator/coregraphics/Geometry.h"

namespace sim {

struct CCUIRoundButton : objc::Implementation<CCUIRoundButton> {
  // What a button does and how it looks.
  struct Use {
    std::string name;  // for whoever does not see the symbol
    ModuleSymbol symbol;
    CGRect plate;        // within the button; coloured while it is on
    double radius;       // of the plate's corners
    objc::Object color;  // UIColor of the plate while it is on, and of the symbol then
    objc::Object ink;
    double offAlpha;  // of white, the plate while it is off
    std::function<bool()> isOn;
    std::function<void(bool)> turn;
  };

  void setUse(Use use);
  // Asked at that moment of what it stands for.
  bool isSelected() const { return isOn_ && isOn_(); }
  // Draws what is so now; asks for no layout.
  void refresh();
  void tap();

  static void registerClass();

 private:
  std::function<bool()> isOn_;
  std::function<void(bool)> turn_;
  objc::Strong<objc::Object> plate_, onGlyph_, offGlyph_;  // UIView
  objc::Strong<objc::Object> onColor_, offColor_;          // UIColor
  std::optional<bool> shown_;
};

}  // namespace sim
