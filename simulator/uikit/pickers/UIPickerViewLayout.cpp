// UIPickerView: its wheels.
#include <algorithm>
#include <cmath>
#include <utility>

#include "simulator/standin/StandIn.h"
#include "simulator/uikit/pickers/PickerStyle.h"
#include "simulator/uikit/pickers/UIPickerColumnView.h"
#include "simulator/uikit/pickers/UIPickerView.h"
#include "simulator/uikit/views/UIView.h"
#include "simulator/uikit/views/ViewTree.h"

namespace sim {

using objc::Object;

UIPickerView::~UIPickerView() {
  for (const auto& column : columns_) leave(column.get());
}

// The column may outlive the picker.
void UIPickerView::leave(Object column) {
  UIPickerColumnView::of(column).makeRow = nullptr;
  UIPickerColumnView::of(column).turned = nullptr;
}

double UIPickerView::rowHeight(long component) const {
  constexpr double usual = 32, low = 24, usualPicker = 216;  // points
  const auto listener = delegate.load();
  if (!objc::respondsTo<"pickerView:rowHeightForComponent:">(listener.get()))
    return UIView::of(self()).geometry().bounds.size.height < usualPicker ? low : usual;
  return objc::send<double, "pickerView:rowHeightForComponent:">(listener.get(), Object(self()),
                                                                 component);
}

// A view of the delegate's, or a label with its title.
objc::Strong<Object> UIPickerView::rowShown(long row, long component) {
  if (const Object view = viewForRow(row, component)) return objc::retain(view);
  const auto listener = delegate.load();
  if (!objc::respondsTo<"pickerView:titleForRow:forComponent:">(listener.get())) return {};
  const Object title = objc::send<Object, "pickerView:titleForRow:forComponent:">(
      listener.get(), Object(self()), row, component);
  return pickerLabel(title, {pickerTitlePoints, 0, false}, nullptr);
}

void UIPickerView::reloadColumns() {
  for (const auto& column : columns_) {
    leave(column.get());
    removeFromSuperview(column.get());
  }
  columns_.clear();
  objc::send<void, "setNeedsLayout">(self());
}

// The platform's way with a new size: nothing of the old one is left but the selected rows.
void UIPickerView::makeColumnsAnew() {
  for (long component = 0; component < long(columns_.size()); ++component)
    selected[std::size_t(component)] = selectedRow(component);
  rowViews_.clear();
  reloadColumns();
}

void UIPickerView::makeColumns() {
  if (UIPickerColumnView::cls() == nullptr) return;
  if (!band_) {
    band_ = pickerBand();
    insertSubview(Object(self()), band_.get(), 0);
  }
  countComponents();
  for (long component = long(columns_.size()); component < long(selected.size()); ++component) {
    auto made = UIPickerColumnView::make();
    UIPickerColumnView& column = UIPickerColumnView::of(made.get());
    objc::send<void, "setUserInteractionEnabled:">(made.get(), false);
    column.rowHeight = rowHeight(component);
    column.numberOfRows = numberOfRows(component);
    column.makeRow = [this, component](long row) { return rowShown(row, component); };
    column.turned = [this, component](long row) { wheelDidTurn(row, component); };
    column.selectRow(selected[std::size_t(component)], false);
    // Behind what others have added.
    insertSubview(Object(self()), made.get(), std::size_t(component) + 1);
    columns_.push_back(std::move(made));
  }
}

void UIPickerView::layoutSubviews() {
  super<void, "layoutSubviews">();
  const CGRect bounds = UIView::of(self()).geometry().bounds;
  if (std::exchange(sizeOfColumns_, bounds.size) != bounds.size) makeColumnsAnew();
  makeColumns();
  if (columns_.empty()) return;
  objc::send<void, "setFrame:">(band_.get(), pickerBandFrame(bounds, rowHeight(0)));
  constexpr double inset = 9, between = 5;  // points
  const auto count = double(columns_.size());
  const double width =
      std::max(std::floor((bounds.size.width - 2 * inset - between * (count - 1)) / count), 0.0);
  double x = inset;
  for (const auto& column : columns_) {
    objc::send<void, "setFrame:">(column.get(), CGRect{{x, 0}, {width, bounds.size.height}});
    x += width + between;
  }
}

}  // namespace sim
