#include "simulator/springboard/Shapes.h"

#include "objc/Message.h"
#include "simulator/foundation/Values.h"
#include "simulator/quartzcore/PathText.h"
#include "simulator/uikit/views/ViewBuilding.h"

namespace sim {

using objc::Object;

Object coreColor(const Rgb& color, double alpha) {
  return objc::send<Object, "CGColor">(
      rgbColor(color.red / 255, color.green / 255, color.blue / 255, alpha));
}

void setGradient(Object layer, std::initializer_list<Rgb> colors,
                 std::initializer_list<double> places) {
  std::vector<Object> made, numbers;
  for (const Rgb& color : colors)
    if (const Object each = coreColor(color)) made.push_back(each);
  for (const double place : places) numbers.push_back(number(place));
  objc::send<void, "setColors:">(layer, array(made));
  if (!numbers.empty()) objc::send<void, "setLocations:">(layer, array(numbers));
}

objc::Strong<Object> addShapeLayer(Object layer, std::string_view path, const ShapeStyle& style) {
  auto shape = objc::adopt(objc::send<Object, "new">(objc_getClass("CAShapeLayer")));
  objc::send<void, "setPath:">(shape.get(), CGPath::of(pathFromText(path)));
  objc::send<void, "setFillColor:">(shape.get(), style.fill);
  objc::send<void, "setStrokeColor:">(shape.get(), style.line);
  objc::send<void, "setLineWidth:">(shape.get(), style.lineWidth);
  objc::send<void, "setLineCap:">(shape.get(), string("round"));
  objc::send<void, "setLineJoin:">(shape.get(), string("round"));
  objc::send<void, "setAnchorPoint:">(shape.get(), CGPoint{});
  objc::send<void, "addSublayer:">(layer, shape.get());
  return shape;
}

}  // namespace sim
