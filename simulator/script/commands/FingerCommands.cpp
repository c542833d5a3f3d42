// The script command of a finger that is followed: for drags, and for pages that only know points.
#include <cmath>
#include <string>

#include "simulator/foundation/Kind.h"
#include "simulator/machine/Phone.h"
#include "simulator/script/commands/UIKitCommands.h"
#include "simulator/uikit/controls/UIControl.h"
#include "simulator/uikit/controls/UISlider.h"
#include "simulator/uikit/pickers/PickerTouches.h"
#include "simulator/uikit/pickers/UIPickerColumnView.h"
#include "simulator/uikit/touches/Finger.h"
#include "simulator/uikit/touches/Touch.h"
#include "simulator/uikit/views/UIView.h"

namespace sim {
namespace {

using objc::Object;

constexpr double farthest = 1e5;  // points: no screen is larger

double coordinate(Arguments& words, const char* what) {
  const double value = words.number(what);
  if (!(std::abs(value) <= farthest)) words.failHere("there is no such point on the screen");
  return value;
}

CGPoint point(Arguments& words) {
  const double x = coordinate(words, "points from the left of the screen");
  const double y = coordinate(words, "points from the top of the screen");
  words.finish();
  return {x, y};
}

void begin(CGPoint place) {
  if (Finger::current().isDown()) throw ScriptError(0, "a finger is on the screen already");
  const Object view = viewOnScreenAt(place);
  if (!view) throw ScriptError(0, "nothing on the screen takes a touch there");
  const Object responder = responderToTouch(view);
  Phone::current().journal.record(
      "user touch " + std::string(object_getClassName((responder ? responder : view).get())));
  Finger::current().began(place);
}

void touch(Arguments& words) {
  Finger& finger = Finger::current();
  if (words.takeKeyword("began")) return begin(point(words));
  const bool moves = words.takeKeyword("moved");
  const bool ends = !moves && words.takeKeyword("ended");
  const bool isCancelled = !moves && !ends && words.takeKeyword("cancelled");
  if (!moves && !ends && !isCancelled) words.failHere("expected began, moved, ended or cancelled");
  const CGPoint place = isCancelled ? CGPoint{} : point(words);
  words.finish();
  if (!finger.isDown()) throw ScriptError(0, "no finger is on the screen");
  if (moves) finger.moved(place);
  if (ends) finger.ended(place);
  if (isCancelled) finger.cancelled();
}

void scroll(Arguments& words) {
  const double x = coordinate(words, "points from the left of the screen");
  const double y = coordinate(words, "points from the top of the screen");
  const long rows = words.integer("a number of rows");
  words.finish();
  const Object view = viewOnScreenAt({x, y});
  Object slider = view, scrolled = view;
  while (slider && !isA<UISlider>(slider)) slider = UIView::of(slider).parent;
  if (UIPickerColumnView* wheel = wheelTouchedAt(view, {x, y})) return wheel->turnBy(rows);
  if (slider && UIControl::of(slider).enabled) return UISlider::of(slider).turnBy(rows);
  // The host's own views that scroll understand this.
  while (scrolled && !objc::respondsTo<"_scrollRows:">(scrolled))
    scrolled = UIView::of(scrolled).parent;
  if (scrolled) return objc::send<void, "_scrollRows:">(scrolled, rows);
  throw ScriptError(0, "there is no wheel, no slider and nothing that scrolls");
}

}  // namespace

void addFingerCommands(CommandTable& table) {
  table.add({"touch", Stage::running, "touch began|moved|ended X Y, touch cancelled",
             "touch began 195 400",
             "A finger comes down on a point of the screen, moves over it, or leaves it.", touch});
  table.add({"scroll", Stage::running, "scroll X Y ROWS", "scroll 195 430 -1",
             "Turns the wheel of the picker at a point of the screen by so many rows, as the wheel "
             "of a mouse or a key does, moves the slider there down by as many twentieths, or "
             "scrolls the "
             "page there.",
             scroll});
}

}  // namespace sim
