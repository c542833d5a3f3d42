// UIPickerView: its wheels.
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
  constexpr double usual = 32;  // points
  const auto listener = delegate.load();
  if (!objc::respondsTo<"pickerView:rowHeightForComponent:">(listener.get())) return usual;
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
  makeColumns();
  if (columns_.empty()) return;
  const CGRect bounds = UIView::of(self()).geometry().bounds;
  objc::send<void, "setFrame:">(band_.get(), pickerBandFrame(bounds, rowHeight(0)));
  const double width = bounds.size.width / double(columns_.size());
  for (std::size_t i = 0; i < columns_.size(); ++i)
    objc::send<void, "setFrame:">(columns_[i].get(),
                                  CGRect{{width * double(i), 0}, {width, bounds.size.height}});
}

}  // namespace sim
