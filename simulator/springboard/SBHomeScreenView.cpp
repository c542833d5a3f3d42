#include "simulator/springboard/SBHomeScreenView.h"

#include <algorithm>

#include "simulator/foundation/Kind.h"
#include "simulator/foundation/Values.h"
#include "simulator/springboard/HomeIcons.h"
#include "simulator/springboard/SystemNames.h"
#include "simulator/standin/StandIn.h"
#include "simulator/uikit/controls/UIControl.h"
#include "simulator/uikit/views/LayoutDirection.h"
#include "simulator/uikit/views/ViewBuilding.h"

namespace sim {
namespace {

using objc::Object;

// Points.
constexpr double side = 27, top = 76, rowHeight = 98, titleHeight = 16, titleWidth = 84;
constexpr double dockMargin = 11, dockHeight = 92, dockRadius = 32;
constexpr std::size_t columns = 4;

// The left edge of a column, on a screen of that width.
double columnX(std::size_t column, double width) {
  const double step = (width - 2 * side - iconSize) / double(columns - 1);
  return side + step * double(column);
}

}  // namespace

Object SBHomeScreenView::initWithFrame(CGRect frame) {
  constexpr double points = 12, ofWhatDoesNotOpen = 0.45;
  constexpr long center = 1;
  const Object made = super<Object, "initWithFrame:">(frame);
  if (!made) return nullptr;
  wallpaper = addView(made, "SBFWallpaperView");
  dock = addView(made, "UIView");
  fill(dock, whiteColor(0.22), dockRadius);
  for (std::size_t i = 0; i < homeIconCount + dockIconCount; ++i) {
    icons.push_back(makeHomeIcon(i));
    objc::send<void, "addSubview:">(made, icons.back().get());
    if (isA<UIControl>(icons.back().get())) {
      addTapTarget(icons.back().get(), made, objc::selector<"_open:">());
      objc::send<void, "setAccessibilityLabel:">(icons.back().get(),
                                                 string(systemName(homeIconTitle(i))));
    } else {
      setAlpha(icons.back(), ofWhatDoesNotOpen);
    }
    if (i >= homeIconCount) continue;
    titles.push_back(addLabel(made, {.points = points, .alignment = center}));
    setText(titles.back(), string(systemName(homeIconTitle(i))));
    if (!isA<UIControl>(icons.back().get())) setAlpha(titles.back(), ofWhatDoesNotOpen);
  }
  note = addLabel(made, {.points = points, .alpha = 0.6, .alignment = center});
  setText(note, string(systemName("Only Settings, Clock and Music open here")));
  return made;
}

void SBHomeScreenView::open(Object icon) {
  for (std::size_t i = 0; i < icons.size(); ++i)
    if (icons[i].get() == icon) return openApplication(i);
}

void SBHomeScreenView::layoutSubviews() {
  super<void, "layoutSubviews">();
  const CGSize size = sizeOf(Object(self()));
  setFrame(wallpaper, {{}, size});
  const double dockTop = size.height - dockHeight - dockMargin;
  setFrame(dock, {{dockMargin, dockTop}, {size.width - 2 * dockMargin, dockHeight}});
  setFrame(note, {{0, dockTop - 2 * titleHeight}, {size.width, titleHeight}});
  const bool isRightToLeft = viewIsRightToLeft(Object(self()));
  for (std::size_t i = 0; i < icons.size(); ++i) {
    const std::size_t column = i % columns;
    const double x = columnX(isRightToLeft ? columns - 1 - column : column, size.width);
    const bool isInDock = i >= homeIconCount;
    const std::size_t row = i / columns;
    const double y = isInDock ? dockTop + (dockHeight - iconSize) / 2
                              : std::min(top, size.height / 11) + rowHeight * double(row);
    setFrame(icons[i], {{x, y}, {iconSize, iconSize}});
    if (!isInDock)
      setFrame(titles[i],
               {{x + (iconSize - titleWidth) / 2, y + iconSize + 4}, {titleWidth, titleHeight}});
  }
}

void SBHomeScreenView::registerClass() {
  StandIn<SBHomeScreenView>("SpringBoard", "SBHomeScreenView", "UIView")
      .method<"initWithFrame:", &SBHomeScreenView::initWithFrame>()
      .method<"_open:", &SBHomeScreenView::open>()
      .partial<"layoutSubviews", &SBHomeScreenView::layoutSubviews>("one page of icons")
      .finish();
}

}  // namespace sim
