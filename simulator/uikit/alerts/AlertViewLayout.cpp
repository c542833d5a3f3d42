// AlertView: where its parts stand.
#include <algorithm>
#include <numeric>

#include "objc/Message.h"
#include "simulator/uikit/alerts/AlertView.h"
#include "simulator/uikit/application/UIScreen.h"
#include "simulator/uikit/views/UIView.h"
#include "simulator/uikit/views/ViewBuilding.h"

namespace sim {
namespace {

using objc::Object;

// Points.
constexpr double cardWidth = 270, margin = 16, aboveWords = 19, betweenWords = 4, belowWords = 20;
constexpr double buttonHeight = 44, titleMargin = 8, hairline = 1 / UIScreen::mainScale;

double titleWidth(Object button) {
  return objc::send<CGSize, "intrinsicContentSize">(objc::send<Object, "titleLabel">(button)).width;
}

}  // namespace

// Where the words end.
double AlertView::layOutWords() {
  double y = aboveWords;
  constexpr double width = cardWidth - 2 * margin;
  for (const auto* label : {&title, &message}) {
    if (!*label) continue;
    if (y > aboveWords) y += betweenWords;
    const CGSize size = objc::send<CGSize, "sizeThatFits:">(label->get(), CGSize{width, 0});
    setFrame(label->get(), {{margin, y}, {width, size.height}});
    y += size.height;
  }
  return y + belowWords;
}

bool AlertView::fitSideBySide() const {
  if (buttons.size() != 2) return false;
  return std::all_of(buttons.begin(), buttons.end(), [](const auto& button) {
    return titleWidth(button.get()) <= cardWidth / 2 - 2 * titleMargin;
  });
}

// Where the card ends. A button that cancels comes first beside another, last in a column.
double AlertView::layOutButtons(double top) {
  const bool besides = fitSideBySide();
  std::vector<std::size_t> order(buttons.size());
  std::iota(order.begin(), order.end(), 0);
  std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
    return besides ? isCancel[a] > isCancel[b] : isCancel[a] < isCancel[b];
  });
  CGRect place = {{0, top}, {besides ? cardWidth / 2 : cardWidth, buttonHeight}};
  for (const std::size_t index : order) {
    setFrame(buttons[index].get(), place);
    const bool isBeside = place.origin.x > 0;
    setFrame(separators[index].get(), isBeside
                                          ? CGRect{place.origin, {hairline, buttonHeight}}
                                          : CGRect{{0, place.origin.y}, {cardWidth, hairline}});
    if (besides)
      place.origin.x += place.size.width;
    else
      place.origin.y += buttonHeight;
  }
  return besides ? top + buttonHeight : place.origin.y;
}

void AlertView::layoutSubviews() {
  super<void, "layoutSubviews">();
  const CGSize room = UIView::of(self()).geometry().bounds.size;
  const double height = layOutButtons(layOutWords());
  setFrame(card.get(),
           {{(room.width - cardWidth) / 2, (room.height - height) / 2}, {cardWidth, height}});
}

}  // namespace sim
