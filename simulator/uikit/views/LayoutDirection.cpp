#include "simulator/uikit/views/LayoutDirection.h"

#include "simulator/foundation/NSLocale.h"
#include "simulator/machine/Phone.h"
#include "simulator/uikit/views/UIView.h"

namespace sim {
namespace {

// UISemanticContentAttribute.
constexpr long forceRightToLeft = 4;

}  // namespace

bool interfaceIsRightToLeft() {
  const std::string language = partsOf(Phone::current().setup.locale).language;
  return language == "ar" || language == "he" || language == "fa" || language == "ur";
}

bool isRightToLeftFor(long semanticContentAttribute) {
  if (semanticContentAttribute == forceRightToLeft) return true;
  // Playback and spatial controls (1, 2) never turn round.
  return semanticContentAttribute == 0 && interfaceIsRightToLeft();
}

bool viewIsRightToLeft(objc::Object view) {
  return isRightToLeftFor(UIView::of(view).semanticContentAttribute);
}

}  // namespace sim
