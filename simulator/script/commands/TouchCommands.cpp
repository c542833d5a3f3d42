// Script commands of a person's hand.
#include <cmath>
#include <string>

#include "objc/Message.h"
#include "simulator/foundation/Kind.h"
#include "simulator/foundation/Values.h"
#include "simulator/machine/Phone.h"
#include "simulator/script/commands/UIKitCommands.h"
#include "simulator/script/values/Literal.h"
#include "simulator/script/values/Target.h"
#include "simulator/uikit/controls/UIButton.h"
#include "simulator/uikit/controls/UIControl.h"
#include "simulator/uikit/controls/UISlider.h"
#include "simulator/uikit/pickers/UIDatePicker.h"
#include "simulator/uikit/pickers/UIPickerView.h"
#include "simulator/uikit/touches/Touch.h"
#include "simulator/uikit/touches/UIMotionEvent.h"
#include "simulator/uikit/views/UIView.h"

namespace sim {
namespace {

using objc::Object;

// UIButton "Back"
std::string named(Object view) {
  std::string name = object_getClassName(view.get());
  if (!isA<UIButton>(view)) return name;
  const std::string title = text(objc::send<Object, "currentTitle">(view));
  return title.empty() ? name : name + ' ' + sim::quoted(title);
}

void record(const std::string& what) {
  Phone::current().journal.record("user " + what);
}

template <class Kind>
Object readView(Arguments& words, const char* kind) {
  const Word word = words.word(std::string("a ") + kind);
  const Object view = targetObject(word);
  if (!isA<Kind>(view))
    throw ScriptError(word.column, word.text + ": expected a " + kind + ", found " +
                                       object_getClassName(view.get()));
  return view;
}

CGPoint centreOf(Object view) {
  const CGRect bounds = UIView::of(view).geometry().bounds;
  return {bounds.origin.x + bounds.size.width / 2, bounds.origin.y + bounds.size.height / 2};
}

// What takes the touch; ScriptError when it is another view or none.
Object reach(Object view, CGPoint point) {
  const Object hit = viewTouchedAt(view, point);
  if (hit && touchIsFor(view, hit)) return hit;
  throw ScriptError(0, "the touch does not reach " + named(view) + " but " +
                           (hit ? named(hit) : std::string("nothing")));
}

void tap(Arguments& words) {
  const Object view = readView<UIView>(words, "view");
  CGPoint point = centreOf(view);
  if (words.takeKeyword("at"))
    point = converted(readLiteral(words, "a point such as {10, 20}"), parseType("{CGPoint=dd}"))
                .as<CGPoint>();
  words.finish();
  const Object control = controlTracking(reach(view, point));
  if (!control) throw ScriptError(0, named(view) + " is no control and lies in none");
  if (!UIControl::of(control).enabled) throw ScriptError(0, named(control) + " is not enabled");
  record("tap " + named(control));
  tapControl(control);
}

void select(Arguments& words) {
  const Object view = readView<UIPickerView>(words, "UIPickerView");
  const long row = words.integer("a row");
  const long component = words.atEnd() ? 0 : words.integer("a component");
  words.finish();
  reach(view, centreOf(view));
  record("select row " + std::to_string(row));
  if (!UIPickerView::of(view).selectRowByTouch(row, component))
    throw ScriptError(0, "the picker view has no row " + std::to_string(row) + " in component " +
                             std::to_string(component));
}

void pick(Arguments& words) {
  const Object view = readView<UIDatePicker>(words, "UIDatePicker");
  const double duration = seconds(words.duration("a duration on the wheels"));
  words.finish();
  reach(view, centreOf(view));
  UIDatePicker& picker = UIDatePicker::of(view);
  if (!picker.canShow(duration))
    throw ScriptError(0, "the wheels go in steps of " + std::to_string(picker.interval) +
                             " minutes up to 23 hours and 59 minutes");
  record("pick " + notation(duration));
  objc::send<void, "setCountDownDuration:">(view, duration);
  UIControl::of(view).sendActionsForEvents(UIControl::valueChanged, nullptr);
}

void slide(Arguments& words) {
  const Object view = readView<UISlider>(words, "UISlider");
  const double value = words.number("a value of the slider");
  words.finish();
  reach(view, centreOf(view));
  UISlider& slider = UISlider::of(view);
  if (value < double(slider.minimumValue) || value > double(slider.maximumValue))
    throw ScriptError(0, "the slider goes from " + notation(slider.minimumValue) + " to " +
                             notation(slider.maximumValue));
  record("slide " + notation(value));
  slider.slideByTouch(float(value));
}

// Each shake ends with its state back at 0.
void shake(Arguments& words) {
  words.finish();
  if (UIMotionEvent::cls() == nullptr) throw ScriptError(0, "this phone lacks UIMotionEvent");
  record("shake");
  const auto event = UIMotionEvent::make();
  objc::send<void, "setShakeState:">(event.get(), 1);
  objc::send<void, "setShakeState:">(event.get(), 0);
}

}  // namespace

void addTouchCommands(CommandTable& table) {
  table.add({"tap", Stage::running, "tap TARGET [at {X, Y}]", "tap $panel.backButton",
             "The user taps a view, in its middle or at a point of its own coordinates; it fails, "
             "naming what is touched instead, when the touch does not reach the view.",
             tap});
  table.add({"select", Stage::running, "select TARGET ROW [COMPONENT]", "select $picker 4",
             "The user turns the wheel of a picker view to a row; rows and components count from "
             "0.",
             select});
  table.add({"shake", Stage::running, "shake", "shake",
             "The user shakes the phone: the shake state of a motion event becomes 1, then 0.",
             shake});
  table.add({"slide", Stage::running, "slide TARGET VALUE", "slide $slider 0.25",
             "The user drags the knob of a slider to a value.", slide});
  table.add({"pick", Stage::running, "pick TARGET DURATION", "pick $datePicker 45m",
             "The user turns the wheels of a count-down date picker to a duration.", pick});
}

}  // namespace sim
