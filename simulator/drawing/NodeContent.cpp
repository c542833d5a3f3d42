#include "simulator/drawing/NodeContent.h"

#include <algorithm>

#include "objc/Message.h"
#include "simulator/foundation/Kind.h"
#include "simulator/quartzcore/CAGradientLayer.h"
#include "simulator/quartzcore/CAShapeLayer.h"
#include "simulator/uikit/controls/UIButton.h"
#include "simulator/uikit/resources/UIColor.h"
#include "simulator/uikit/resources/UIImage.h"
#include "simulator/uikit/views/LabelText.h"
#include "simulator/uikit/views/LayoutDirection.h"
#include "simulator/uikit/views/UIImageView.h"
#include "simulator/uikit/views/UILabel.h"
#include "simulator/uikit/views/UIView.h"

namespace sim {
namespace {

using objc::Object;

scene::Content textOf(const UILabel& label) {
  const auto color = sceneColor(label.textColor);
  LabelText set = labelText(label);
  if (!color || set.lines.empty()) return {};
  return scene::Text{set.style,    *color,        std::move(set.lines),
                     set.baseline, set.alignment, set.isRightToLeft};
}

// UIViewContentMode.
constexpr long scaleToFill = 0, aspectFit = 1, aspectFill = 2, redraw = 3;

CGSize shownSize(CGSize image, CGSize room, long mode) {
  if (mode == scaleToFill || mode == redraw) return room;
  if (mode != aspectFit && mode != aspectFill) return image;
  if (image.width <= 0 || image.height <= 0) return {};
  const double wide = room.width / image.width;
  const double high = room.height / image.height;
  const double scale = mode == aspectFit ? std::min(wide, high) : std::max(wide, high);
  return {image.width * scale, image.height * scale};
}

// From 0, the left or upper edge, to 1. Modes from 5 on: top, bottom, left, right, top left, top
// right, bottom left, bottom right.
CGPoint anchorOf(long mode) {
  constexpr CGPoint anchors[] = {{0.5, 0}, {0.5, 1}, {0, 0.5}, {1, 0.5},
                                 {0, 0},   {1, 0},   {0, 1},   {1, 1}};
  return mode >= 5 && mode <= 12 ? anchors[mode - 5] : CGPoint{0.5, 0.5};
}

CGRect imageFrame(const CGRect& bounds, CGSize image, long mode) {
  const CGSize size = shownSize(image, bounds.size, mode);
  const CGPoint anchor = anchorOf(mode);
  return {{bounds.origin.x + (bounds.size.width - size.width) * anchor.x,
           bounds.origin.y + (bounds.size.height - size.height) * anchor.y},
          size};
}

// An image that leaves it open is a template in a system button.
bool isTemplate(const UIImage& image, Object view) {
  constexpr long alwaysTemplate = 2;
  if (image.renderingMode != 0) return image.renderingMode == alwaysTemplate;
  const UIButton* button = stateOf<UIButton>(UIView::of(view).parent);
  return button != nullptr && button->buttonType == UIButton::system;
}

// A button's picture runs as the button does.
bool isMirrored(const UIImage& image, Object view) {
  const Object parent = UIView::of(view).parent;
  return image.flipsForRightToLeftLayoutDirection &&
         viewIsRightToLeft(isA<UIButton>(parent) ? parent : view);
}

scene::Content imageOf(Object view, const UIImageView& shown, const CGRect& bounds) {
  const UIImage* image = stateOf<UIImage>(shown.image);
  if (image == nullptr) return {};
  scene::Image content{image->file,
                       imageFrame(bounds, image->size, UIView::of(view).contentMode),
                       {},
                       isMirrored(*image, view)};
  if (!isTemplate(*image, view)) return content;
  content.tint = sceneColor(objc::send<Object, "tintColor">(view));
  if (!content.tint) return {};
  return content;
}

std::vector<double> dashesOf(const CAShapeLayer& layer) {
  std::vector<double> lengths;
  const auto count = objc::send<unsigned long, "count">(layer.lineDashPattern);
  for (unsigned long i = 0; i < count; ++i)
    lengths.push_back(objc::send<double, "doubleValue">(
        objc::send<Object, "objectAtIndex:">(layer.lineDashPattern, i)));
  return lengths;
}

scene::Content shapeOf(const CAShapeLayer& layer) {
  scene::Shape shape;
  shape.path = layer.elements();
  shape.fill = sceneColor(layer.fillColor);
  shape.rule = layer.rule();
  if (const auto line = sceneColor(layer.strokeColor); line && layer.lineWidth > 0)
    shape.stroke = {
        *line,           layer.lineWidth,    layer.cap(), layer.join(), layer.miterLimit,
        dashesOf(layer), layer.lineDashPhase};
  if (shape.path.empty() || (!shape.fill && !shape.stroke)) return {};
  return shape;
}

scene::Content gradientOf(const CAGradientLayer& layer) {
  scene::Gradient gradient{{}, layer.startPoint, layer.endPoint};
  for (const auto& stop : layer.stops()) gradient.stops.push_back({stop.at, stop.color.values});
  if (gradient.stops.empty()) return {};
  return gradient;
}

}  // namespace

std::optional<scene::Color> sceneColor(Object color) {
  std::optional<scene::Color> found;
  if (const UIColor* view = stateOf<UIColor>(color)) found = view->components.values;
  if (const CGColor* layer = stateOf<CGColor>(color)) found = layer->color.values;
  return found && (*found)[3] > 0 ? found : std::nullopt;
}

scene::Content contentOf(Object view, const CALayer& layer, const CGRect& bounds) {
  const Object self(layer.self());
  if (const UILabel* label = stateOf<UILabel>(view)) return textOf(*label);
  if (const UIImageView* image = stateOf<UIImageView>(view)) return imageOf(view, *image, bounds);
  if (const CAShapeLayer* shape = stateOf<CAShapeLayer>(self)) return shapeOf(*shape);
  if (const CAGradientLayer* gradient = stateOf<CAGradientLayer>(self))
    return gradientOf(*gradient);
  return {};
}

}  // namespace sim
