#include "simulator/uikit/pickers/UIPickerView.h"

#include <algorithm>

#include "simulator/foundation/Exception.h"
#include "simulator/standin/StandIn.h"
#include "simulator/uikit/pickers/PickerTouches.h"
#include "simulator/uikit/pickers/UIPickerColumnView.h"

namespace sim {

using objc::Object;

void UIPickerView::setDataSource(Object source) {
  dataSource = objc::weak(source);
  reloadAllComponents();
}

void UIPickerView::setDelegate(Object listener) {
  delegate = objc::weak(listener);
  rowViews_.clear();
  reloadColumns();
}

long UIPickerView::numberOfComponents() const {
  return objc::send<long, "numberOfComponentsInPickerView:">(dataSource.load().get(),
                                                             Object(self()));
}

long UIPickerView::numberOfRows(long component) const {
  return objc::send<long, "pickerView:numberOfRowsInComponent:">(dataSource.load().get(),
                                                                 Object(self()), component);
}

void UIPickerView::countComponents() {
  const auto known = selected.size();
  selected.resize(std::size_t(std::max(0L, numberOfComponents())), -1);
  for (std::size_t i = known; i < selected.size(); ++i)
    selected[i] = numberOfRows(long(i)) > 0 ? 0 : -1;
}

void UIPickerView::selectRow(long row, long component, bool animated) {
  countComponents();
  if (component < 0 || component >= long(selected.size()))
    raiseException("NSRangeException",
                   "there is no component " + std::to_string(component) + " in the picker view");
  if (row < 0)
    raiseException("NSRangeException", "-[NSMutableIndexSet addIndexesInRange:]: Range {" +
                                           std::to_string((unsigned long)row) +
                                           ", 1} exceeds maximum index value of NSNotFound - 1");
  if (row >= numberOfRows(component)) return;
  selected[std::size_t(component)] = row;
  if (std::size_t(component) < columns_.size())
    UIPickerColumnView::of(columns_[std::size_t(component)].get()).selectRow(row, animated);
}

long UIPickerView::selectedRow(long component) {
  countComponents();
  if (component < 0 || component >= long(selected.size())) return -1;
  if (std::size_t(component) >= columns_.size()) return selected[std::size_t(component)];
  return UIPickerColumnView::of(columns_[std::size_t(component)].get()).rowUnderBar();
}

Object UIPickerView::viewForRow(long row, long component) {
  const auto listener = delegate.load();
  if (row < 0 || row >= numberOfRows(component)) return nullptr;
  if (!objc::respondsTo<"pickerView:viewForRow:forComponent:reusingView:">(listener.get()))
    return nullptr;
  auto& kept = rowViews_[{component, row}];
  if (!kept)
    kept = objc::retain(objc::send<Object, "pickerView:viewForRow:forComponent:reusingView:">(
        listener.get(), Object(self()), row, component, nullptr));
  return kept;
}

void UIPickerView::reloadComponent(long component) {
  std::erase_if(rowViews_, [component](const auto& each) { return each.first.first == component; });
  countComponents();
  if (component < 0 || component >= long(selected.size())) return;
  long& row = selected[std::size_t(component)];
  const long last = numberOfRows(component) - 1;
  row = std::min(std::max(row, 0L), last);
  reloadColumns();
}

void UIPickerView::reloadAllComponents() {
  countComponents();
  for (long component = 0; component < long(selected.size()); ++component)
    reloadComponent(component);
}

bool UIPickerView::hasRow(long row, long component) const {
  return component >= 0 && component < numberOfComponents() && row >= 0 &&
         row < numberOfRows(component);
}

void UIPickerView::turnTo(long row, long component) {
  selectRow(row, component, true);
  wheelDidTurn(row, component);
}

void UIPickerView::wheelDidTurn(long row, long component) {
  selected[std::size_t(component)] = row;
  const auto listener = delegate.load();
  if (objc::respondsTo<"pickerView:didSelectRow:inComponent:">(listener.get()))
    objc::send<void, "pickerView:didSelectRow:inComponent:">(listener.get(), Object(self()), row,
                                                             component);
}

void UIPickerView::registerClass() {
  StandIn<UIPickerView> picker("UIKit", "UIPickerView", "UIView");
  addPickerTouches(picker);
  picker.method<"dataSource", &UIPickerView::itsDataSource>()
      .method<"setDataSource:", &UIPickerView::setDataSource>()
      .method<"delegate", &UIPickerView::itsDelegate>()
      .method<"setDelegate:", &UIPickerView::setDelegate>()
      .method<"numberOfComponents", &UIPickerView::numberOfComponents>()
      .method<"numberOfRowsInComponent:", &UIPickerView::numberOfRows>()
      .method<"selectRow:inComponent:animated:", &UIPickerView::selectRow>()
      .method<"selectedRowInComponent:", &UIPickerView::selectedRow>()
      .partial<"viewForRow:forComponent:", &UIPickerView::viewForRow>(
          "made when asked for or seen; none is offered for being used again")
      .partial<"layoutSubviews", &UIPickerView::layoutSubviews>(
          "all wheels are equally wide; no click as rows pass")
      .method<"reloadComponent:", &UIPickerView::reloadComponent>()
      .method<"reloadAllComponents", &UIPickerView::reloadAllComponents>()
      .finish();
}

}  // namespace sim
