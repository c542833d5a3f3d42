#include "simulator/springboard/SBHomeScreenView.h"

#include <algorithm>

#include "simulator/foundation/Kind.h"
#include "simulator/foundation/Values.h"
#include "simulator/springboard/HomeIcons.h"
#include "simulator/standin/StandIn.h"
#include "simulator/uikit/controls/UIControl.h"
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
  constexpr double points = 12;
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
      objc::send<void, "setAccessibilityLabel:">(icons.back().get(), string(homeIconTitle(i)));
    }
    if (i >= homeIconCount) continue;
    titles.push_back(addLabel(made, {.points = points, .alignment = center}));
    setText(titles.back(), string(homeIconTitle(i)));
  }
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
  for (std::size_t i = 0; i < icons.size(); ++i) {
    const double x = columnX(i % columns, size.width);
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
