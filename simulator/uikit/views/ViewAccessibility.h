// UIAccessibility: what a screen reader is told of a view. Whoever makes a view says what its class
// does not say by itself.
#pragma once

#include <optional>

#include "objc/Ownership.h"

namespace sim {

struct ViewAccessibility {
  // UIAccessibilityTraits, as far as the stand-ins have them.
  static constexpr unsigned long button = 1 << 0, image = 1 << 2, selected = 1 << 3;
  static constexpr unsigned long staticText = 1 << 6, notEnabled = 1 << 8, adjustable = 1 << 12;

  // What was set; nil or nothing where the class answers by itself.
  objc::Strong<objc::Object> label;  // NSString
  objc::Strong<objc::Object> value;  // NSString
  objc::Strong<objc::Object> hint;   // NSString
  objc::Strong<objc::Object> identifier;
  std::optional<unsigned long> traits;
  std::optional<bool> isElement;
};

// For classes that answer by themselves: what was set for the view, and else what they say.
objc::Object accessibilityLabelOr(id view, objc::Object otherwise);
objc::Object accessibilityValueOr(id view, objc::Object otherwise);
unsigned long accessibilityTraitsOr(id view, unsigned long otherwise);
bool isAccessibilityElementOr(id view, bool otherwise);

}  // namespace sim
