// One wheel of a picker, private on the platform: rows on the outside of a cylinder.
#pragma once

#include <functional>
#include <map>
#include <optional>

#include "objc/Class.h"
#include "simulator/coregraphics/Geometry.h"
#include "simulator/machine/MainQueue.h"
#include "simulator/machine/RunLoopMode.h"
#include "simulator/uikit/pickers/PickerWheel.h"

namespace sim {

struct UIPickerColumnView : objc::Implementation<UIPickerColumnView> {
  // The view of a row, which keeps its size and stands in the row's middle; may be nil.
  using MakeRow = std::function<objc::Strong<objc::Object>(long row)>;

  MakeRow makeRow;
  std::function<void(long row)> turned;  // a person's hand has turned it to that row
  std::function<void()> rested;          // a person's hand has left it, and it stands still
  long numberOfRows = 0;
  long selectedRow = 0;
  double rowHeight = 32;   // points
  bool isEndless = false;  // after the last row comes the first

  // Rolls there, on the shorter way if it is endless.
  void selectRow(long row, bool animated);
  // All rows are made again.
  void reload();
  void layoutSubviews();

  ~UIPickerColumnView();

  // By hand: it is held, or runs out. The row under the bar changes then, the selected one does
  // not.
  bool isTurning() const { return wheel_.has_value(); }
  long rowUnderBar() const;
  // The row that it rests on, as it stands there; nil before it was laid out.
  objc::Object selectedCell() const;

  // A finger's way, in the column's coordinates: the wheel follows it, runs out when it is let go,
  // and comes to rest on a row.
  bool isHeld() const;
  void touchBegan(CGPoint point);
  void touchMoved(CGPoint point);  // this and the following: while it is held
  void touchEnded(CGPoint point);
  void touchCancelled();
  // By a mouse's wheel or a key, at once.
  void turnBy(long rows);

  static void registerClass();

 private:
  // Places count without end; in an endless wheel several show the same row.
  long rowAt(long place) const;
  objc::Object cell(long place);
  void arrange();
  void placeCell(objc::Object cell, double rowsFromMiddle);
  double position() const;  // in places; between two of them while it turns
  void takeWheel();
  void stopTurning();
  void keepRunning();
  void run();
  void rest();

  long place_ = 0;                  // of the selected row
  std::optional<double> arranged_;  // the place in the middle when the cells were last arranged
  std::map<long, objc::Strong<objc::Object>> cells_;  // by place; each holds a row's view
  std::optional<PickerWheel> wheel_;                  // while it turns by hand
  std::optional<Tracking> tracking_;                  // as long, but not after a tap
  double fingerAt_ = 0;                               // y
  double fingerWay_ = 0;                              // points, up and down alike
  MainQueue::Ticket ticket_ = 0;                      // of the next step of a wheel that runs out
};

}  // namespace sim
