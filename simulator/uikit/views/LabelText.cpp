#include "simulator/uikit/views/LabelText.h"

#include <algorithm>

#include "simulator/coretext/Characters.h"
#include "simulator/foundation/Values.h"
#include "simulator/uikit/views/LayoutDirection.h"
#include "simulator/uikit/views/UILabel.h"
#include "simulator/uikit/views/UIView.h"

namespace sim {
namespace {

HorizontalAlignment alignmentOf(const UILabel& label) {
  switch (label.textAlignment) {
    case 0:
      return HorizontalAlignment::left;
    case 1:
      return HorizontalAlignment::center;
    case 2:
      return HorizontalAlignment::right;
    default:
      return viewIsRightToLeft(objc::Object(label.self())) ? HorizontalAlignment::right
                                                           : HorizontalAlignment::left;
  }
}

// One line shrinks as far as the label allows.
FontStyle shrunk(FontStyle style, const UILabel& label, const std::string& shown, double width) {
  if (!label.adjustsFontSizeToFitWidth || label.numberOfLines != 1) return style;
  const double natural = textWidth(shown, style);
  if (natural <= width || natural <= 0) return style;
  style.pointSize *= std::max(width / natural, label.minimumScaleFactor);
  // Smaller text may have other proportions.
  constexpr double step = 0.25;  // points
  const double smallest = std::max(label.fontStyle().pointSize * label.minimumScaleFactor, step);
  while (textWidth(shown, style) > width && style.pointSize - step >= smallest)
    style.pointSize -= step;
  return style;
}

}  // namespace

LabelText labelText(const UILabel& label) {
  const CGRect bounds = UIView::of(label.self()).geometry().bounds;
  const std::string shown = text(label.text);
  LabelText set;
  set.style = shrunk(label.fontStyle(), label, shown, bounds.size.width);
  set.lines = typeset(shown, set.style, bounds.size.width, label.numberOfLines);
  // As many as fit, but always one.
  const double height = set.style.lineHeight();
  const double fitting = std::max(1.0, (bounds.size.height + 1) / height);
  if (double(set.lines.size()) > fitting)
    set.lines = typeset(shown, set.style, bounds.size.width, long(fitting));
  set.alignment = alignmentOf(label);
  set.isRightToLeft = isRightToLeft(shown, viewIsRightToLeft(objc::Object(label.self())));
  set.baseline =
      (bounds.size.height - height * double(set.lines.size())) / 2 + set.style.ascender();
  return set;
}

}  // namespace sim
