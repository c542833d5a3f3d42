// Autoresizing: how subviews follow the size of their superview.
#include <array>

#include "objc/Message.h"
#include "simulator/uikit/views/ViewTree.h"

namespace sim {
namespace {

// UIViewAutoresizing's bits for one axis: before, the length itself, after.
struct Axis {
  bool before;
  bool length;
  bool after;
};

Axis horizontal(unsigned long mask) {
  return {(mask & 1) != 0, (mask & 2) != 0, (mask & 4) != 0};
}
Axis vertical(unsigned long mask) {
  return {(mask & 8) != 0, (mask & 16) != 0, (mask & 32) != 0};
}

struct Span {
  double start;
  double length;
};

// The flexible parts share the change in proportion to their sizes, or alike where all are empty.
Span resized(Span span, double before, double now, const Axis& axis) {
  const std::array<double, 3> parts = {axis.before ? span.start : 0, axis.length ? span.length : 0,
                                       axis.after ? before - span.start - span.length : 0};
  const int flexible = axis.before + axis.length + axis.after;
  if (flexible == 0) return span;
  const double total = parts[0] + parts[1] + parts[2];
  const auto share = [&](bool isFlexible, double part) {
    if (!isFlexible) return 0.0;
    return (now - before) * (total != 0 ? part / total : 1.0 / flexible);
  };
  return {span.start + share(axis.before, parts[0]), span.length + share(axis.length, parts[1])};
}

void follow(objc::Object view, CGSize before, CGSize now) {
  const UIView& state = UIView::of(view);
  if (state.autoresizingMask == 0) return;
  const CGRect frame = state.geometry().frame();
  const Span x = resized({frame.origin.x, frame.size.width}, before.width, now.width,
                         horizontal(state.autoresizingMask));
  const Span y = resized({frame.origin.y, frame.size.height}, before.height, now.height,
                         vertical(state.autoresizingMask));
  objc::send<void, "setFrame:">(view, CGRect{{x.start, y.start}, {x.length, y.length}});
}

}  // namespace

void sizeChanged(objc::Object view, CGSize before) {
  UIView& state = UIView::of(view);
  const CGSize now = state.geometry().bounds.size;
  if (now == before) return;
  const auto children = state.children;
  if (state.autoresizesSubviews)
    for (const auto& child : children) follow(child.get(), before, now);
  objc::send<void, "setNeedsLayout">(view);
}

}  // namespace sim
