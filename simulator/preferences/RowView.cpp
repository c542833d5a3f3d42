#include "simulator/preferences/RowView.h"

#include <algorithm>

#include "simulator/foundation/Kind.h"
#include "simulator/foundation/Values.h"
#include "simulator/preferences/Style.h"
#include "simulator/preferences/SwitchView.h"
#include "simulator/preferences/TapArea.h"
#include "simulator/standin/StandIn.h"
#include "simulator/uikit/views/ViewAccessibility.h"
#include "simulator/uikit/views/ViewBuilding.h"

namespace sim {
namespace {

using objc::Object;

constexpr double gap = 8, iconSide = 29, iconRadius = 6.5;  // points

objc::Strong<Object> addRowLabel(Object row, long alignment) {
  auto label = addLabel(row, {.alignment = alignment});
  objc::send<void, "setAdjustsFontSizeToFitWidth:">(label.get(), true);
  objc::send<void, "setMinimumScaleFactor:">(label.get(), 0.6);
  return label;
}

double widthOf(Object label, double room) {
  return std::min(sizeThatFits(label, {room, RowView::height}).width, room);
}

}  // namespace

Object RowView::initWithFrame(CGRect frame) {
  const Object made = super<Object, "initWithFrame:">(frame);
  if (!made) return nullptr;
  label = addRowLabel(made, style::leading());
  value = addRowLabel(made, style::trailing());
  return made;
}

void RowView::show(const Row& shown) {
  const bool hasSameEnd = shown.end == row.end, hasSameIcon = shown.icon == row.icon;
  row = shown;
  setText(label.get(), string(row.label));
  setText(value.get(), string(row.value));
  objc::send<void, "setTextColor:">(value.get(),
                                    row.valueIsFaint ? style::secondaryText() : whiteColor(1));
  if (!hasSameIcon) showIcon();
  if (!hasSameEnd) showEnd(row.end);
  if (SwitchView* toggle = stateOf<SwitchView>(end.get())) toggle->setOn(row.isOn);
  if (row.tapped) TapArea::of(self()).onTap(row.tapped);
  speak();
  objc::send<void, "setNeedsLayout">(self());
}

void RowView::showIcon() {
  objc::send<void, "removeFromSuperview">(icon.get());
  icon = {};
  if (row.icon.empty()) return;
  icon = addView(Object(self()), "UIImageView");
  objc::send<void, "setImage:">(icon.get(), objc::send<Object, "imageWithContentsOfFile:">(
                                                objc_getClass("UIImage"), string(row.icon)));
  fill(icon.get(), nullptr, iconRadius);
  objc::send<void, "setClipsToBounds:">(icon.get(), true);
}

void RowView::showEnd(Row::End kind) {
  objc::send<void, "removeFromSuperview">(end.get());
  end = {};
  const Object made(self());
  if (kind == Row::End::arrow)
    end = style::addSymbol(made, style::Symbol::forward, style::secondaryText());
  if (kind == Row::End::check) end = style::addSymbol(made, style::Symbol::check, style::blue());
  if (kind == Row::End::toggle) end = addView(made, "_SettingsSwitch");
}

void RowView::speak() {
  const bool isOn = row.end == Row::End::check || (row.end == Row::End::toggle && row.isOn);
  objc::send<void, "setAccessibilityLabel:">(self(), string(row.label));
  objc::send<void, "setAccessibilityValue:">(self(), string(row.value));
  objc::send<void, "setAccessibilityTraits:">(
      self(), ViewAccessibility::button | (isOn ? ViewAccessibility::selected : 0));
}

void RowView::setHighlighted(bool on) {
  super<void, "setHighlighted:">(on);
  objc::send<void, "setBackgroundColor:">(self(), on ? style::pressedCard() : Object());
}

// How much of the width it leaves.
double RowView::layOutEnd(CGSize size) {
  const double right = size.width - style::margin;
  if (!end) return right;
  const CGSize its =
      row.end == Row::End::toggle ? SwitchView::size : CGSize{style::symbolSide, style::symbolSide};
  const double x = right - its.width;
  setFrame(end.get(), style::placed({{x, (size.height - its.height) / 2}, its}, size.width));
  return x - gap;
}

void RowView::layoutSubviews() {
  super<void, "layoutSubviews">();
  const CGSize size = sizeOf(Object(self()));
  const double right = layOutEnd(size);
  double left = style::margin;
  if (icon) {
    const CGRect place = {{left, (size.height - iconSide) / 2}, {iconSide, iconSide}};
    setFrame(icon.get(), style::placed(place, size.width));
    left += iconSide + style::margin;
  }
  // The value takes what it needs, and leaves the label at least half.
  const double room = right - left;
  const double labelNeeds = widthOf(label.get(), room);
  const double valueWidth =
      row.value.empty() ? 0 : widthOf(value.get(), std::max(room / 2, room - labelNeeds - gap));
  const double labelWidth = room - (valueWidth > 0 ? valueWidth + gap : 0);
  setFrame(label.get(), style::placed({{left, 0}, {labelWidth, size.height}}, size.width));
  setFrame(value.get(),
           style::placed({{right - valueWidth, 0}, {valueWidth, size.height}}, size.width));
}

void RowView::registerClass() {
  StandIn<RowView>("Preferences", "_SettingsRow", "_SettingsTapArea")
      .method<"initWithFrame:", &RowView::initWithFrame>()
      .method<"setHighlighted:", &RowView::setHighlighted>()
      .method<"layoutSubviews", &RowView::layoutSubviews>()
      .finish();
}

}  // namespace sim
