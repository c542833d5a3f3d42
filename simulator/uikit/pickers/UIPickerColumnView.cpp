#include "simulator/uikit/pickers/UIPickerColumnView.h"

#include <algorithm>
#include <cmath>

#include "simulator/standin/StandIn.h"
#include "simulator/uikit/animation/Animation.h"
#include "simulator/uikit/views/UIView.h"

namespace sim {
namespace {

using objc::Object;

constexpr long cellsEachWay = 4;        // from the selected row: more are behind the cylinder
constexpr double rollingSeconds = 0.3;  // from row to row
constexpr double quarterTurn = 1.5;     // radians, a little less than where rows have no height

double fadedAlpha(double rowsFromMiddle) {
  constexpr double beside = 0.5, further = 0.12;
  const double distance = std::abs(rowsFromMiddle);
  return distance < 1 ? 1 - distance * (1 - beside)
                      : std::max(0.0, beside - further * (distance - 1));
}

void place(Object view, CGSize room) {
  const CGSize size = UIView::of(view).geometry().bounds.size;
  if (size == CGSize{}) return objc::send<void, "setFrame:">(view, CGRect{{}, room});
  const CGPoint origin = {std::round((room.width - size.width) / 2),
                          std::round((room.height - size.height) / 2)};
  objc::send<void, "setFrame:">(view, CGRect{origin, size});
}

}  // namespace

long UIPickerColumnView::rowAt(long place) const {
  if (isEndless && numberOfRows > 0) return (place % numberOfRows + numberOfRows) % numberOfRows;
  return place >= 0 && place < numberOfRows ? place : -1;
}

long UIPickerColumnView::rowUnderBar() const {
  const long place = std::lround(position());
  return isTurning() ? rowAt(isEndless ? place : std::clamp(place, 0L, numberOfRows - 1))
                     : selectedRow;
}

void UIPickerColumnView::selectRow(long row, bool animated) {
  stopTurning();
  long way = row - rowAt(place_);
  if (isEndless && numberOfRows > 0) {
    way = (way % numberOfRows + numberOfRows) % numberOfRows;
    if (way > numberOfRows / 2) way -= numberOfRows;
  }
  selectedRow = row;
  place_ += way;
  if (!animated) return objc::send<void, "setNeedsLayout">(self());
  const auto roll = objc::block<void()>([this] { arrange(); });
  animateChanges({.duration = rollingSeconds, .options = animation::curveEaseOut}, roll.get(),
                 nullptr);
}

void UIPickerColumnView::reload() {
  for (const auto& [place, its] : cells_) objc::send<void, "removeFromSuperview">(its.get());
  cells_.clear();
  place_ = selectedRow;
  stopTurning();
  arranged_.reset();
  objc::send<void, "setNeedsLayout">(self());
}

Object UIPickerColumnView::cell(long at) {
  const auto found = cells_.find(at);
  if (found != cells_.end()) return found->second;
  const long row = rowAt(at);
  const auto view = row < 0 || !makeRow ? objc::Strong<Object>() : makeRow(row);
  if (!view) return nullptr;
  const CGSize room = {UIView::of(self()).geometry().bounds.size.width, rowHeight};
  auto made = UIView::make();
  objc::send<void, "setUserInteractionEnabled:">(made.get(), false);
  objc::send<void, "setBounds:">(made.get(), CGRect{{}, room});
  objc::send<void, "addSubview:">(made.get(), view.get());
  place(view, room);
  objc::send<void, "addSubview:">(self(), made.get());
  return (cells_[at] = std::move(made)).get();
}

Object UIPickerColumnView::selectedCell() const {
  const auto found = cells_.find(place_);
  return found == cells_.end() ? Object() : Object(found->second);
}

void UIPickerColumnView::placeCell(Object its, double rowsFromMiddle) {
  const CGSize size = UIView::of(self()).geometry().bounds.size;
  const double radius = std::max(size.height / 2, rowHeight);
  const double angle = std::clamp(rowsFromMiddle * rowHeight / radius, -quarterTurn, quarterTurn);
  objc::send<void, "setCenter:">(
      its, CGPoint{size.width / 2, size.height / 2 + radius * std::sin(angle)});
  objc::send<void, "setTransform:">(its, CGAffineTransform{1, 0, 0, std::cos(angle), 0, 0});
  objc::send<void, "setAlpha:">(its, fadedAlpha(rowsFromMiddle));
}

// Rows that come in begin where they would have stood before.
void UIPickerColumnView::arrange() {
  const double here = position();
  const long middle = std::lround(here);
  const double before = arranged_.value_or(here);
  for (long at = middle - cellsEachWay; at <= middle + cellsEachWay; ++at) {
    if (!cells_.contains(at)) {
      const auto begin = objc::block<void()>([&] {
        if (const Object made = cell(at)) placeCell(made, double(at) - before);
      });
      performWithoutAnimation(begin.get());
    }
    if (const Object its = cell(at)) placeCell(its, double(at) - here);
  }
  arranged_ = here;
  std::erase_if(cells_, [middle](const auto& each) {
    if (std::abs(each.first - middle) <= cellsEachWay) return false;
    objc::send<void, "removeFromSuperview">(each.second.get());
    return true;
  });
}

void UIPickerColumnView::layoutSubviews() {
  super<void, "layoutSubviews">();
  arrange();
}

void UIPickerColumnView::registerClass() {
  StandIn<UIPickerColumnView>("UIKit", "UIPickerColumnView", "UIView")
      .method<"layoutSubviews", &UIPickerColumnView::layoutSubviews>()
      .finish();
}

}  // namespace sim
