#include "simulator/uikit/views/LayoutDirection.h"

#include <unicode/uloc.h>

#include "simulator/machine/Phone.h"
#include "simulator/uikit/views/UIView.h"

namespace sim {
namespace {

// UISemanticContentAttribute.
constexpr long forceRightToLeft = 4;

}  // namespace

bool interfaceIsRightToLeft() {
  return uloc_isRightToLeft(Phone::current().setup.locale.c_str()) != 0;
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
