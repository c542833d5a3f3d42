// Wheels of rows that a data source counts and a delegate draws.
#pragma once

#include <map>
#include <utility>
#include <vector>

#include "objc/Class.h"
#include "simulator/coregraphics/Geometry.h"

namespace sim {

struct UIPickerView : objc::Implementation<UIPickerView> {
  objc::Weak<objc::Object> dataSource;
  objc::Weak<objc::Object> delegate;
  std::vector<long> selected;  // row of each component; -1 in one without rows

  objc::Object itsDataSource() const { return autorelease(dataSource.load()); }
  objc::Object itsDelegate() const { return autorelease(delegate.load()); }
  void setDataSource(objc::Object source);
  void setDelegate(objc::Object listener);
  long numberOfComponents() const;
  long numberOfRows(long component) const;
  // Tells nobody. A row past the last one changes nothing, a negative one raises.
  void selectRow(long row, long component, bool animated);
  long selectedRow(long component);  // the one under the bar; -1: none
  // As the delegate makes it; kept until the rows are loaded again.
  objc::Object viewForRow(long row, long component);
  void reloadAllComponents();
  void reloadComponent(long component);

  bool hasRow(long row, long component) const;
  // By hand: the delegate hears of it. The row must be there.
  void turnTo(long row, long component);

  ~UIPickerView();
  void layoutSubviews();

  static void registerClass();

 private:
  void countComponents();
  void wheelDidTurn(long row, long component);
  static void leave(objc::Object column);
  double rowHeight(long component) const;
  void makeColumns();
  void reloadColumns();  // they are made again when they are next laid out
  void makeColumnsAnew();
  objc::Strong<objc::Object> rowShown(long row, long component);
  std::map<std::pair<long, long>, objc::Strong<objc::Object>> rowViews_;
  objc::Strong<objc::Object> band_;                  // behind the selected rows
  CGSize sizeOfColumns_;                             // the picker's when they were made
  std::vector<objc::Strong<objc::Object>> columns_;  // UIPickerColumnView
};

}  // namespace sim
