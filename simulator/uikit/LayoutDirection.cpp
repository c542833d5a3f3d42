#include "simulator/uikit/LayoutDirection.h"

#include "simulator/foundation/NSLocale.h"
#include "simulator/phone/Phone.h"
#include "simulator/uikit/UIView.h"

namespace sim {
namespace {

// UISemanticContentAttribute.
constexpr long forceLeftToRight = 3, forceRightToLeft = 4;

}  // namespace

bool interfaceIsRightToLeft() {
  const std::string language = partsOf(Phone::current().setup.locale).language;
  return language == "ar" || language == "he" || language == "fa" || language == "ur";
}

bool viewIsRightToLeft(objc::Object view) {
  const long attribute = UIView::of(view).semanticContentAttribute;
  if (attribute == forceRightToLeft) return true;
  // Playback and spatial controls (1, 2) never turn round.
  return attribute == 0 && interfaceIsRightToLeft();
}

}  // namespace sim
