// CoreGraphics' path: on the platform a CoreFoundation object, which is an object, too. Here it
// never changes once it is made.
#pragma once

#include <array>
#include <vector>

#include "objc/Class.h"
#include "simulator/coregraphics/Geometry.h"

namespace sim {

struct PathElement {
  enum class Kind { move, line, cubic, close };
  Kind kind;
  // Move and line: where to. Cubic: two control points, then where to. Close: none.
  std::array<CGPoint, 3> points{};
  bool operator==(const PathElement&) const = default;
};

struct CGPath : objc::Implementation<CGPath> {
  std::vector<PathElement> elements;  // a subpath begins with a move, or where one was closed

  bool isEqual(objc::Object other) const;
  unsigned long hash() const;
  objc::Object description() const;

  // Autoreleased; nil on a phone without the class.
  static objc::Object of(std::vector<PathElement> elements);
  using objc::Implementation<CGPath>::of;

  static void registerClass();
};

}  // namespace sim
