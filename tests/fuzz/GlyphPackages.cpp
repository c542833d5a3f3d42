// Any bytes are a tree of layers that can be drawn and takes on all its states, or an error with
// its place; either way nothing is left behind.
#include <cstddef>
#include <cstdint>

#include "objc/Message.h"
#include "simulator/foundation/Kind.h"
#include "simulator/foundation/NSArray.h"
#include "simulator/foundation/Values.h"
#include "simulator/quartzcore/CALayer.h"
#include "simulator/quartzcore/CAShapeLayer.h"
#include "simulator/quartzcore/caml/Reader.h"
#include "tests/fuzz/FuzzPhone.h"

namespace sim {
namespace {

using objc::Object;

void requireFinite(const CGPoint& point) {
  require(std::isfinite(point.x) && std::isfinite(point.y));
}

// What a renderer looks at. No layer lies inside itself: then this would not end.
void look(Object object, int depth) {
  constexpr int deepest = 200;
  require(depth < deepest);
  const CALayer* layer = stateOf<CALayer>(object);
  if (layer == nullptr) return;
  requireFinite(layer->geometry.frame().origin);
  if (const CAShapeLayer* shape = stateOf<CAShapeLayer>(object)) {
    for (const PathElement& element : shape->elements())
      for (const CGPoint& point : element.points) requireFinite(point);
    if (const ColorComponents* fill = shape->fill()) require(fill->values[3] >= 0);
    shape->rule();
    shape->cap();
    shape->join();
  }
  look(layer->mask, depth + 1);
  for (const auto& child : layer->children) look(child.get(), depth + 1);
}

void takeEveryState(Object root) {
  const CALayer* layer = stateOf<CALayer>(root);
  const NSArray* states = layer != nullptr ? stateOf<NSArray>(layer->states) : nullptr;
  if (states == nullptr) return;
  const auto controller = objc::adopt(
      objc::send<Object, "initWithLayer:">(objc_alloc(objc_getClass("CAStateController")), root));
  const auto all = states->elements;
  for (const auto& state : all) {
    objc::send<void, "setState:ofLayer:">(controller.get(), state.get(), root);
    look(root, 0);
  }
  objc::send<void, "setState:ofLayer:">(controller.get(), Object(), root);
  look(root, 0);
}

void readAndUse(const std::string& document) {
  const objc::AutoreleasePool pool;
  try {
    const auto root = caml::read(document, "/var/Glyph.ca");
    look(root.get(), 0);
    takeEveryState(root);
  } catch (const caml::Error& error) {
    require(error.offset <= document.size() && *error.what() != '\0');
    caml::lineAndColumn(document, error.offset);
  }
}

}  // namespace
}  // namespace sim

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  sim::FuzzPhone::start();
  sim::readAndUse("<caml><CAShapeLayer/></caml>");
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
  const std::string text(reinterpret_cast<const char*>(bytes), count);
  const std::size_t before = sim::liveObjectCount();
  sim::readAndUse(text);
  // Within a document, to get beyond its outermost elements.
  sim::readAndUse("<caml><CALayer id=\"#1\"><sublayers>" + text + "</sublayers></CALayer></caml>");
  sim::require(sim::liveObjectCount() == before);
  return 0;
}
