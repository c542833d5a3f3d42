// One wheel of a picker, private on the platform: rows on the outside of a cylinder.
#pragma once

#include <functional>
#include <map>
#include <optional>

#include "objc/Class.h"
#include "simulator/uikit/Geometry.h"

namespace sim {

struct UIPickerColumnView : objc::Implementation<UIPickerColumnView> {
  // The view of a row, which keeps its size and stands in the row's middle; may be nil.
  using MakeRow = std::function<objc::Strong<objc::Object>(long row)>;

  MakeRow makeRow;
  long numberOfRows = 0;
  long selectedRow = 0;
  double rowHeight = 32;   // points
  bool isEndless = false;  // after the last row comes the first

  // Rolls there, on the shorter way if it is endless.
  void selectRow(long row, bool animated);
  // All rows are made anew.
  void reload();
  void layoutSubviews();

  static void registerClass();

 private:
  // Places count without end; in an endless wheel several show the same row.
  long rowAt(long place) const;
  objc::Object cell(long place);
  void arrange();
  void stand(objc::Object cell, double rowsFromMiddle);

  long place_ = 0;                // of the selected row
  std::optional<long> arranged_;  // the place in the middle when the cells were last arranged
  std::map<long, objc::Strong<objc::Object>> cells_;  // by place; each holds a row's view
};

}  // namespace sim
