// Views in a window that is on the screen, and constraints between them.
#pragma once

#include <ostream>

#include "simulator/uikit/autolayout/Attributes.h"
#include "simulator/uikit/nib/EdgeInsets.h"
#include "tests/uikit/UIKitTest.h"

namespace sim {

// So that failures can be read.
inline void PrintTo(const CGRect& rect, std::ostream* out) {
  *out << "{{" << rect.origin.x << ", " << rect.origin.y << "}, {" << rect.size.width << ", "
       << rect.size.height << "}}";
}
inline void PrintTo(const CGSize& size, std::ostream* out) {
  *out << "{" << size.width << ", " << size.height << "}";
}

// What the centre's arithmetic costs is less than that.
inline ::testing::AssertionResult isAbout(const CGRect& found, const CGRect& expected) {
  constexpr double precision = 1e-9;  // points
  const auto near = [](double a, double b) { return a - b < precision && b - a < precision; };
  if (near(found.origin.x, expected.origin.x) && near(found.origin.y, expected.origin.y) &&
      near(found.size.width, expected.size.width) && near(found.size.height, expected.size.height))
    return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure() << "found " << ::testing::PrintToString(found)
                                       << ", expected " << ::testing::PrintToString(expected);
}

// A view of which nothing but its content size is known.
struct ContentView : objc::Implementation<ContentView> {
  CGSize content;
  CGSize intrinsicContentSize() { return content; }
  static void registerClass();
};

class LayoutTest : public UIKitTest {
 protected:
  static constexpr long atMost = -1, equal = 0, atLeast = 1;

  LayoutTest();

  // Placed by constraints.
  Strong<Object> child(Object parent, const char* className = "UIView") const;
  Strong<Object> content(Object parent, CGSize size) const;
  Strong<Object> label(Object parent, const char* text) const;

  struct Rule {
    Object first;
    long attribute;
    long relation = equal;
    Object second = nullptr;
    long secondAttribute = 0;
    double multiplier = 1;
    double constant = 0;
    float priority = 1000;
  };
  // In force from now on; autoreleased.
  static Object constrain(const Rule& rule);
  static Object constraint(const Rule& rule);  // not in force

  static Object width(Object view, double points, float priority = 1000);
  static Object height(Object view, double points, float priority = 1000);
  static void place(Object view, double x, double y);  // of the left upper corner
  static void size(Object view, double itsWidth, double itsHeight);

  // The run loop comes round.
  CGRect laidOut(Object view) {
    advance(0);
    return frameOf(view);
  }

  Strong<Object> window;  // 390 by 844, in the screen's corner
};

}  // namespace sim
