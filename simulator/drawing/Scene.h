// What is on the phone's screen: plain values, for whoever draws it or sends it elsewhere. Lengths
// are points; colours have their alpha beside them, from 0 to 1.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "simulator/coregraphics/CGPath.h"
#include "simulator/coregraphics/Geometry.h"
#include "simulator/coretext/FontStyle.h"
#include "simulator/coretext/Typesetter.h"
#include "simulator/quartzcore/CAShapeLayer.h"
#include "simulator/uikit/views/LabelText.h"

namespace sim::scene {

using Color = std::array<double, 4>;  // red, green, blue, alpha

struct Text {
  FontStyle style;
  Color color;
  std::vector<TextLine> lines;
  double baseline;  // of the first line
  HorizontalAlignment alignment;
  bool isRightToLeft;
  bool operator==(const Text&) const = default;
};

struct Image {
  std::string file;           // the phone's path of a PNG
  CGRect frame;               // the whole picture fills it
  std::optional<Color> tint;  // what is opaque in the picture has this colour
  bool isMirrored = false;    // its left is on the right
  bool operator==(const Image&) const = default;
};

struct Stroke {
  Color color;
  double width;
  LineCap cap = LineCap::butt;
  LineJoin join = LineJoin::miter;
  double miterLimit = 10;
  std::vector<double> dashes;  // lengths of line and gap in turn; none: a whole line
  double dashPhase = 0;
  bool operator==(const Stroke&) const = default;
};

struct Shape {
  std::vector<PathElement> path;
  std::optional<Color> fill;
  FillRule rule = FillRule::nonZero;
  std::optional<Stroke> stroke;
  bool operator==(const Shape&) const = default;
};

// From one point to another, both as parts of the bounds.
struct Gradient {
  struct Stop {
    double at;  // 0 to 1
    Color color;
    bool operator==(const Stop&) const = default;
  };
  std::vector<Stop> stops;
  CGPoint start{0.5, 0};
  CGPoint end{0.5, 1};
  bool operator==(const Gradient&) const = default;
};

struct Border {
  double width;  // inside the bounds
  Color color;
  bool operator==(const Border&) const = default;
};

// What a control is for somebody who does not see it, and text that is told in other words.
struct Accessibility {
  // A group is a button that others lie in. What is unspoken is seen, and passed over.
  enum class Role { button, group, slider, picker, text, unspoken };
  Role role;
  std::string label;
  std::string value;  // may be empty
  bool isEnabled = true;
  bool isSelected = false;
  long row = 0;   // of a picker: the one it is on, from 0
  long rows = 0;  // of a picker: how many there are
  bool operator==(const Accessibility&) const = default;
};

using Content = std::variant<std::monostate, Text, Image, Shape, Gradient>;

// One layer: its background, its content, the nodes below it, its border; all of that cut to its
// bounds where it clips, and at last made as transparent as it is.
struct Attributes {
  std::string kind;  // the class of the view, or of the layer without one
  CGRect bounds;
  CGAffineTransform toParent;  // from the bounds' coordinates into the parent's
  double opacity = 1;
  double cornerRadius = 0;
  double backdropBlur = 0;  // how blurred the parent's earlier children are: that of a Gaussian
  bool clips = false;
  std::optional<Color> background;
  std::optional<Border> border;
  Content content;
  std::optional<Accessibility> accessibility;
  bool operator==(const Attributes&) const = default;
};

struct Node {
  std::uint64_t id = 0;  // of the layer, for as long as it lives; not 0
  Attributes attributes;
  std::vector<Node> children;  // back to front
  // In this node's coordinates; what is transparent in it is cut away. May be nullptr.
  std::shared_ptr<const Node> mask;
  // What this node looked like before, without its place and transparency, lying over it with this
  // opacity while it dissolves. The node itself is then seen with the rest of the opacity.
  std::shared_ptr<const Node> before;
  double beforeOpacity = 0;
  bool operator==(const Node&) const;
};

}  // namespace sim::scene
