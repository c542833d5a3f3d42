#include "tweak/indicators/Dozewell2TimeLeftLabel.h"

#include "objc/Class.h"
#include "tweak/indicators/SpokenTimeLeft.h"
#include "tweak/support/SpokenText.h"

namespace {

struct Dozewell2TimeLeftLabelImplementation
    : objc::Implementation<Dozewell2TimeLeftLabelImplementation> {
  id initWithCoder(objc::Object coder);
  NSString accessibilityLabel();
  NSString accessibilityValue();
  unsigned long accessibilityTraits();
};

using Label = Dozewell2TimeLeftLabelImplementation;

// With digits of different widths the text would jump sideways as it counts.
id Label::initWithCoder(objc::Object coder) {
  const UILabel label(super<id, "initWithCoder:">(coder));
  // The weight that the layout has; a font does not tell its own.
  label.setFont(UIFont::monospacedDigitSystem(label.font().pointSize(), UIFont::weightLight));
  return label.get();
}

NSString Label::accessibilityLabel() {
  return SpokenText::localized("SLEEP_TIMER");
}

// Worked out when a screen reader asks, not at every tick.
NSString Label::accessibilityValue() {
  return spokenTimeLeft();
}

// So that a screen reader asks again from time to time.
unsigned long Label::accessibilityTraits() {
  return super<unsigned long, "accessibilityTraits">() | UIView::traitUpdatesFrequently;
}

}  // namespace

objc::Registration Dozewell2TimeLeftLabel::registerClass() {
  return objc::ClassBuilder<Label>("Dozewell2TimeLeftLabel", "UILabel")
      .method<"initWithCoder:", &Label::initWithCoder>()
      .method<"accessibilityLabel", &Label::accessibilityLabel>()
      .method<"accessibilityValue", &Label::accessibilityValue>()
      .method<"accessibilityTraits", &Label::accessibilityTraits>()
      .finish();
}
