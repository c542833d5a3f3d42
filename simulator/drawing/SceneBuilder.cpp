#include "simulator/drawing/SceneBuilder.h"

#include "simulator/drawing/Accessibility.h"
#include "simulator/drawing/NodeContent.h"
#include "simulator/foundation/Kind.h"
#include "simulator/machine/Phone.h"
#include "simulator/uikit/application/PreRender.h"
#include "simulator/uikit/application/UIScreen.h"
#include "simulator/uikit/application/UIWindow.h"
#include "simulator/uikit/views/UIView.h"

namespace sim {
namespace {

using objc::Object;
using scene::Node;

// What is fainter is not seen.
constexpr double invisible = 0.001;

CGAffineTransform toSuperlayer(const LayerValues& seen, CGPoint anchorPoint) {
  const CGPoint anchor = {seen.bounds.origin.x + anchorPoint.x * seen.bounds.size.width,
                          seen.bounds.origin.y + anchorPoint.y * seen.bounds.size.height};
  CGAffineTransform transform = seen.transform;
  const CGPoint moved = transform.apply(CGPoint{-anchor.x, -anchor.y});
  transform.tx = moved.x + seen.position.x;
  transform.ty = moved.y + seen.position.y;
  return transform;
}

CGAffineTransform upsideDown(const CGRect& bounds) {
  return {1, 0, 0, -1, 0, 2 * bounds.origin.y + bounds.size.height};
}

// nil for a layer of its own.
Object viewOf(const CALayer& layer) {
  const UIView* view = stateOf<UIView>(layer.delegate);
  return view != nullptr && view->layer.get().get() == layer.self() ? layer.delegate : Object();
}

std::optional<scene::Color> visible(const std::array<double, 4>& color) {
  return color[3] > 0 ? std::optional(color) : std::nullopt;
}

scene::Attributes attributesOf(const CALayer& layer, const LayerValues& seen, Object view) {
  scene::Attributes made;
  made.kind = object_getClassName(view ? view.get() : layer.self());
  made.bounds = seen.bounds;
  made.toParent = toSuperlayer(seen, layer.geometry.anchorPoint);
  made.opacity = seen.opacity;
  made.cornerRadius = seen.cornerRadius;
  made.backdropBlur = seen.backdropBlur;
  made.clips = layer.masksToBounds;
  made.background = visible(seen.backgroundColor);
  if (const auto color = sceneColor(layer.borderColor); color && layer.borderWidth > 0)
    made.border = scene::Border{layer.borderWidth, *color};
  made.content = contentOf(view, layer, seen.bounds);
  made.accessibility = accessibilityOf(view);
  return made;
}

void flip(Node& node) {
  const CGAffineTransform turned = upsideDown(node.attributes.bounds);
  for (Node& child : node.children)
    child.attributes.toParent = child.attributes.toParent.then(turned);
  auto* shape = std::get_if<scene::Shape>(&node.attributes.content);
  if (shape == nullptr) return;
  for (PathElement& element : shape->path)
    for (CGPoint& point : element.points) point = turned.apply(point);
}

void addChildren(Node& node, const CALayer& layer, Nanoseconds now) {
  for (const auto& child : layer.children) {
    const CALayer& below = CALayer::of(child.get());
    if (below.hidden) continue;
    Node made = sceneOf(below, now);
    if (made.attributes.opacity > invisible) node.children.push_back(std::move(made));
  }
}

void addTransition(Node& node, const CALayer& layer, Nanoseconds now) {
  if (!layer.transition.isRunning(now)) return;
  node.before = std::static_pointer_cast<const Node>(layer.transition.before);
  node.beforeOpacity = 1 - layer.transition.timing.progress(now);
}

LayerPicture takePicture(const CALayer& layer) {
  return std::make_shared<const Node>(sceneOf(layer, Phone::current().clock.uptime()));
}

}  // namespace

Node sceneOf(const CALayer& layer, Nanoseconds now) {
  Node node;
  node.id = layer.identity;
  const LayerValues seen = layer.presentation(now);
  node.attributes = attributesOf(layer, seen, viewOf(layer));
  if (node.attributes.opacity <= invisible) return node;
  addChildren(node, layer, now);
  if (const CALayer* mask = stateOf<CALayer>(layer.mask))
    node.mask = std::make_shared<const Node>(sceneOf(*mask, now));
  if (layer.geometryFlipped) flip(node);
  addTransition(node, layer, now);
  return node;
}

Node screenScene() {
  const objc::AutoreleasePool pool;
  runPreRenderHooks();
  const Nanoseconds now = Phone::current().clock.uptime();
  Node screen;
  screen.attributes.kind = "screen";
  screen.attributes.bounds = {{}, UIScreen::size()};
  screen.attributes.background = scene::Color{0, 0, 0, 1};
  screen.attributes.clips = true;
  if (!UIScreen::isLit()) return screen;
  for (const auto& window : UIWindow::visibleWindows()) {
    const CALayer* layer = stateOf<CALayer>(UIView::layerOf(window.get()));
    if (layer == nullptr) continue;
    Node made = sceneOf(*layer, now);
    if (made.attributes.opacity > invisible) screen.children.push_back(std::move(made));
  }
  return screen;
}

void drawTransitions() {
  setTakePicture(&takePicture);
}

}  // namespace sim
