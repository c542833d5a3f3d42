#include "simulator/drawing/Accessibility.h"

#include <algorithm>
#include <cctype>

#include "objc/Message.h"
#include "simulator/foundation/Kind.h"
#include "simulator/foundation/Values.h"
#include "simulator/uikit/controls/UIButton.h"
#include "simulator/uikit/controls/UIControl.h"
#include "simulator/uikit/controls/UISlider.h"
#include "simulator/uikit/pickers/UIDatePicker.h"
#include "simulator/uikit/pickers/UIPickerColumnView.h"
#include "simulator/uikit/resources/UIImage.h"
#include "simulator/uikit/touches/Touch.h"
#include "simulator/uikit/views/UIImageView.h"
#include "simulator/uikit/views/UILabel.h"
#include "simulator/uikit/views/UIView.h"
#include "simulator/uikit/views/ViewTree.h"

namespace sim {
namespace {

using objc::Object;

// "hourglassStartIcon" becomes "Hourglass start", "MRUNowPlayingRoutingButton" "Routing": what a
// name says beyond what every name of its kind says.
std::string inWords(std::string_view name) {
  for (const std::string_view common : {"MRUNowPlaying", "MRU", "UI", "CC", "nb"})
    if (name.starts_with(common)) {
      name.remove_prefix(common.size());
      break;
    }
  for (const std::string_view common : {"Icon", "Button", "View"})
    if (name.size() > common.size() && name.ends_with(common)) name.remove_suffix(common.size());
  std::string words;
  for (const char letter : name) {
    const auto byte = static_cast<unsigned char>(letter);
    if (std::isupper(byte) && !words.empty()) words += ' ';
    words += char(words.empty() ? std::toupper(byte) : std::tolower(byte));
  }
  return words;
}

// "/var/…/backIcon@3x.png" gives "backIcon".
std::string_view nameOfFile(std::string_view path) {
  path.remove_prefix(path.find_last_of('/') + 1);
  return path.substr(0, path.find_first_of("@."));
}

std::string nameOfImage(Object view) {
  if (const UIImageView* shown = stateOf<UIImageView>(view))
    if (const UIImage* image = stateOf<UIImage>(shown->image))
      return inWords(nameOfFile(image->file));
  for (const auto& child : UIView::of(view).children)
    if (std::string name = nameOfImage(child.get()); !name.empty()) return name;
  return {};
}

// What the view, or the first label in it that is seen, says; nothing for nil.
std::string textIn(Object view) {
  if (!view || UIView::of(view).isHidden() || UIView::of(view).alpha() <= 0) return {};
  if (const UILabel* label = stateOf<UILabel>(view); label != nullptr && label->text)
    return text(label->text);
  for (const auto& child : UIView::of(view).children)
    if (std::string found = textIn(child.get()); !found.empty()) return found;
  return {};
}

std::string valueOf(Object view) {
  return text(objc::send<Object, "accessibilityValue">(view));
}

std::string labelOf(Object view) {
  if (const Object given = objc::send<Object, "accessibilityLabel">(view)) return text(given);
  if (std::string said = textIn(view); !said.empty()) return said;
  if (std::string name = nameOfImage(view); !name.empty()) return name;
  // What the class is called says something of particular ones only.
  return object_getClass(view.get()) == UIControl::cls() ? std::string()
                                                         : inWords(object_getClassName(view.get()));
}

// A touch in its middle would be for it, or will be when it is animated no more.
bool isReachable(Object view) {
  const AnimationsCountAsEnded atRest;
  const Object hit = viewTouchedAt(view, middleOf(view));
  if (!hit) return false;
  return isA<UIPickerColumnView>(view) ? isDescendant(hit, UIView::of(view).parent)
                                       : touchIsFor(view, hit);
}

// The unit that stands on the picker beside the wheel: the first text in front of it.
std::string unitOf(Object wheel) {
  const auto& views = UIView::of(UIView::of(wheel).parent).children;
  auto view = std::find_if(views.begin(), views.end(),
                           [wheel](const auto& each) { return each.get() == wheel; });
  while (view != views.end() && ++view != views.end() && !isA<UIPickerColumnView>(view->get()))
    if (std::string said = textIn(view->get()); !said.empty()) return said;
  return "Wheel";
}

scene::Accessibility wheelOf(Object view) {
  const Object given = objc::send<Object, "accessibilityLabel">(UIView::of(view).parent);
  const UIPickerColumnView& column = UIPickerColumnView::of(view);
  scene::Accessibility made{scene::Accessibility::Role::picker, given ? text(given) : unitOf(view),
                            textIn(column.selectedCell())};
  made.row = column.selectedRow;
  made.rows = column.numberOfRows;
  return made;
}

bool holdsControls(Object view) {
  const auto& children = UIView::of(view).children;
  return std::any_of(children.begin(), children.end(), [](const auto& child) {
    return isA<UIControl>(child.get()) || holdsControls(child.get());
  });
}

scene::Accessibility told(scene::Accessibility::Role role, Object view) {
  const auto traits = objc::send<unsigned long, "accessibilityTraits">(view);
  return {role, labelOf(view), valueOf(view), (traits & ViewAccessibility::notEnabled) == 0,
          (traits & ViewAccessibility::selected) != 0};
}

std::optional<scene::Accessibility> roleOf(Object view) {
  using Role = scene::Accessibility::Role;
  if (isA<UIPickerColumnView>(view)) return wheelOf(view);
  if (isA<UISlider>(view)) return told(Role::slider, view);
  if (!isA<UIControl>(view) || isA<UIDatePicker>(view)) return std::nullopt;
  if ((UIControl::of(view).allControlEvents() & UIControl::touchUpInside) == 0) return std::nullopt;
  const auto made = told(holdsControls(view) ? Role::group : Role::button, view);
  return made.label.empty() ? std::nullopt : std::optional(made);
}

// Only where something else is told than what stands there: text is read as it stands.
std::optional<scene::Accessibility> textRoleOf(Object view) {
  using Role = scene::Accessibility::Role;
  if (!objc::send<bool, "isAccessibilityElement">(view))
    return scene::Accessibility{Role::unspoken, {}, {}};
  auto made = told(Role::text, view);
  if (made.label == text(UILabel::of(view).text) && made.value.empty()) return std::nullopt;
  return made;
}

}  // namespace

std::optional<scene::Accessibility> accessibilityOf(Object view) {
  if (!view) return std::nullopt;
  if (isA<UILabel>(view)) return textRoleOf(view);
  auto made = roleOf(view);
  return made && isReachable(view) ? made : std::nullopt;
}

}  // namespace sim
