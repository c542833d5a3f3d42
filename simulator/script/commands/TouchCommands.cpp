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
#include "simulator/uikit/application/UIScreen.h"
#include "simulator/uikit/controls/UIControl.h"
#include "simulator/uikit/controls/UISlider.h"
#include "simulator/uikit/pickers/PickerTouches.h"
#include "simulator/uikit/pickers/UIDatePicker.h"
#include "simulator/uikit/pickers/UIPickerView.h"
#include "simulator/uikit/touches/Finger.h"
#include "simulator/uikit/touches/Touch.h"
#include "simulator/uikit/touches/UIMotionEvent.h"

namespace sim {
namespace {

using objc::Object;

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

// Nothing lies on it that would take the touch.
void expectItself(Object view, Object responder) {
  if (responder != view)
    throw OutOfReach("the touch is not for " + nameForPeople(view) + " but for " +
                     nameForPeople(responder));
}

void tap(Arguments& words) {
  const Object view = readView<UIView>(words, "view");
  CGPoint point = middleOf(view);
  if (words.takeKeyword("at"))
    point = converted(readLiteral(words, "a point such as {10, 20}"), parseType("{CGPoint=dd}"))
                .as<CGPoint>();
  words.finish();
  const Object responder = Finger::current().reach(view, point);
  record("tap " + nameForPeople(responder));
  Finger::current().touch(view, responder, point);
}

void select(Arguments& words) {
  const Object view = readView<UIPickerView>(words, "UIPickerView");
  const long row = words.integer("a row");
  const long component = words.atEnd() ? 0 : words.integer("a component");
  words.finish();
  UIPickerView& picker = UIPickerView::of(view);
  if (!picker.hasRow(row, component))
    throw ScriptError(0, "the picker view has no row " + std::to_string(row) + " in component " +
                             std::to_string(component));
  expectItself(view, responderTouchedAt(view, middleOfWheel(view, component)));
  record("select row " + std::to_string(row));
  picker.turnTo(row, component);
}

void pick(Arguments& words) {
  const Object view = readView<UIDatePicker>(words, "UIDatePicker");
  const double duration = seconds(words.duration("a duration on the wheels"));
  words.finish();
  UIDatePicker& picker = UIDatePicker::of(view);
  if (!picker.canShow(duration))
    throw ScriptError(0, "the wheels go in steps of " + std::to_string(picker.interval) +
                             " minutes up to 23 hours and 59 minutes");
  for (const long wheel : {0L, 1L})
    expectItself(view, responderTouchedAt(view, middleOfWheel(view, wheel)));
  record("pick " + notation(duration));
  objc::send<void, "setCountDownDuration:">(view, duration);
  UIControl::of(view).sendActionsForEvents(UIControl::valueChanged, nullptr);
}

void slide(Arguments& words) {
  const Object view = readView<UISlider>(words, "UISlider");
  const double value = words.number("a value of the slider");
  words.finish();
  const UISlider& slider = UISlider::of(view);
  if (!(value >= double(slider.minimumValue) && value <= double(slider.maximumValue)))
    throw ScriptError(0, "the slider goes from " + notation(slider.minimumValue) + " to " +
                             notation(slider.maximumValue));
  const CGPoint knob = slider.knob();
  const CGPoint to = slider.knobAt(float(value));
  expectItself(view, Finger::current().reach(view, knob));
  record("slide " + notation(value));
  Finger::current().touch(view, view, knob, to);
}

// Nothing is felt while the screen is off.
void shake(Arguments& words) {
  const bool isCancelled = words.takeKeyword("cancelled");
  words.finish();
  if (UIMotionEvent::cls() == nullptr) throw ScriptError(0, "this phone lacks UIMotionEvent");
  record(isCancelled ? "shake cancelled" : "shake");
  if (!UIScreen::isLit()) return;
  const auto event = UIMotionEvent::make();
  UIMotionEvent& motion = UIMotionEvent::of(event.get());
  motion.enter(UIMotionEvent::began);
  motion.enter(isCancelled ? UIMotionEvent::cancelled : UIMotionEvent::ended);
}

}  // namespace

void addTouchCommands(CommandTable& table) {
  table.add({"tap", Stage::running, "tap TARGET [at {X, Y}]", "tap $panel.backButton",
             "The user taps a view, in its middle or at a point of its own coordinates: a finger "
             "comes down and leaves it, as with `touch`. It fails where the touch reaches another "
             "view, naming that, where nothing takes touches, while the view or one around it is "
             "animated (a finger would come later: `advance` first), and where a control is not "
             "enabled or does not follow the finger. A view in no window is taken as alone on the "
             "screen.",
             tap});
  table.add({"select", Stage::running, "select TARGET ROW [COMPONENT]", "select $picker 4",
             "The user turns the wheel of a picker view to a row; rows and components count from "
             "0. It fails where a finger would not reach the middle of the wheel, but no touch is "
             "sent: the row counts and is told at once, and the wheel rolls there afterwards. "
             "`touch` and `scroll` turn wheels as a finger does, with its swing, the rows on the "
             "way and the time until they rest. A picker in no window is taken as alone on the "
             "screen.",
             select});
  table.add(
      {"shake", Stage::running, "shake [cancelled]", "shake",
       "The user shakes the phone: the shake state of a motion event becomes 0 as the movement "
       "begins, then 1. Cancelled it is no shake in the end, as when the phone is picked up: 0, "
       "then 2. With the screen off nothing is felt.",
       shake});
  table.add({"slide", Stage::running, "slide TARGET VALUE", "slide $slider 0.25",
             "The user drags the knob of a slider to a value: a finger comes down on the knob, "
             "moves once and leaves it. It fails where `tap` would.",
             slide});
  table.add(
      {"pick", Stage::running, "pick TARGET DURATION", "pick $datePicker 45m",
       "The user turns the wheels of a count-down date picker to a duration. It fails where a "
       "finger would not reach both wheels, but as with `select` no touch is sent: the "
       "duration counts and is told at once.",
       pick});
}

}  // namespace sim
