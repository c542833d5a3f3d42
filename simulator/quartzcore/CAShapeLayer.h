// A layer that draws a path, in its own coordinates: above its background, below its sublayers.
#pragma once

#include <vector>

#include "objc/Class.h"
#include "simulator/coregraphics/CGColor.h"
#include "simulator/coregraphics/CGPath.h"

namespace sim {

enum class FillRule { nonZero, evenOdd };
enum class LineCap { butt, round, square };
enum class LineJoin { miter, round, bevel };

struct CAShapeLayer : objc::Implementation<CAShapeLayer> {
  objc::Strong<objc::Object> path;             // CGPath; nil draws nothing
  objc::Strong<objc::Object> fillColor;        // CGColor, opaque black at first; nil fills nothing
  objc::Strong<objc::Object> strokeColor;      // CGColor; nil draws no line
  objc::Strong<objc::Object> fillRule;         // NSString, "non-zero" at first
  objc::Strong<objc::Object> lineCap;          // NSString, "butt" at first
  objc::Strong<objc::Object> lineJoin;         // NSString, "miter" at first
  objc::Strong<objc::Object> lineDashPattern;  // NSArray of lengths in points; nil: a whole line
  double lineWidth = 1;                        // points
  double lineDashPhase = 0;                    // points
  double miterLimit = 10;
  double strokeStart = 0;  // parts of the path's length
  double strokeEnd = 1;

  CAShapeLayer();

  // What a renderer reads. A name that is none of the rules, caps or joins counts as the first.
  const std::vector<PathElement>& elements() const;  // empty without a path
  const ColorComponents* fill() const;               // nullptr: nothing is filled
  const ColorComponents* stroke() const;             // nullptr: no line is drawn
  FillRule rule() const;
  LineCap cap() const;
  LineJoin join() const;

  static void registerClass();
};

}  // namespace sim
