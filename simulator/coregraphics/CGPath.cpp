#include "simulator/coregraphics/CGPath.h"

#include "simulator/foundation/Kind.h"
#include "simulator/foundation/Values.h"
#include "simulator/standin/StandIn.h"

namespace sim {
namespace {

using objc::Object;
using Kind = PathElement::Kind;

std::size_t pointsOf(Kind kind) {
  return kind == Kind::cubic ? 3 : kind == Kind::close ? 0 : 1;
}

const char* operatorOf(Kind kind) {
  switch (kind) {
    case Kind::move:
      return "m";
    case Kind::line:
      return "l";
    case Kind::cubic:
      return "c";
    case Kind::close:
      break;
  }
  return "h";
}

}  // namespace

Object CGPath::of(std::vector<PathElement> elements) {
  if (cls() == nullptr) return nullptr;
  auto made = make();
  of(made.get()).elements = std::move(elements);
  return autorelease(std::move(made));
}

bool CGPath::isEqual(Object other) const {
  const CGPath* path = stateOf<CGPath>(other);
  return path != nullptr && path->elements == elements;
}

unsigned long CGPath::hash() const {
  return elements.size();
}

// Each point before the operator that uses it: "20 6 m 34 20 l h".
Object CGPath::description() const {
  std::string text;
  for (const PathElement& element : elements) {
    for (std::size_t i = 0; i < pointsOf(element.kind); ++i)
      text +=
          notation(number(element.points[i].x)) + ' ' + notation(number(element.points[i].y)) + ' ';
    text += std::string(operatorOf(element.kind)) + ' ';
  }
  if (!text.empty()) text.pop_back();
  return string(text);
}

void CGPath::registerClass() {
  StandIn<CGPath>("CoreGraphics", "CGPath", "NSObject")
      .method<"isEqual:", &CGPath::isEqual>()
      .method<"hash", &CGPath::hash>()
      .partial<"description", &CGPath::description>("in one line")
      .finish();
}

}  // namespace sim
