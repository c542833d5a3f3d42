#include "simulator/quartzcore/LayerKeyPath.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "objc/Message.h"
#include "simulator/quartzcore/CALayer.h"

namespace sim {
namespace {

using objc::Object;

// A transform of the plane taken apart: scaled, then turned, then moved.
struct PlaneTransform {
  CGPoint scale;
  double turn;  // radians
  CGPoint move;

  explicit PlaneTransform(const CATransform3D& from)
      : scale{std::hypot(from.m11, from.m12), std::hypot(from.m21, from.m22)},
        turn(std::atan2(from.m12, from.m11)),
        move{from.m41, from.m42} {
    if (from.m11 * from.m22 - from.m12 * from.m21 < 0) scale.y = -scale.y;
  }

  CATransform3D whole() const {
    const double cosine = std::cos(turn);
    const double sine = std::sin(turn);
    return CATransform3D::ofAffine(
        {scale.x * cosine, scale.x * sine, -scale.y * sine, scale.y * cosine, move.x, move.y});
  }
};

struct Structures {
  CGPoint position;
  CGPoint anchorPoint;
  CGRect bounds;
  PlaneTransform transform;

  explicit Structures(const LayerGeometry& from)
      : position(from.position),
        anchorPoint(from.anchorPoint),
        bounds(from.bounds),
        transform(from.transform) {}
};

struct Member {
  std::string_view path;
  double& (*of)(Structures&);
};

constexpr Member members[] = {
    {"position.x", [](Structures& s) -> double& { return s.position.x; }},
    {"position.y", [](Structures& s) -> double& { return s.position.y; }},
    {"anchorPoint.x", [](Structures& s) -> double& { return s.anchorPoint.x; }},
    {"anchorPoint.y", [](Structures& s) -> double& { return s.anchorPoint.y; }},
    {"bounds.origin.x", [](Structures& s) -> double& { return s.bounds.origin.x; }},
    {"bounds.origin.y", [](Structures& s) -> double& { return s.bounds.origin.y; }},
    {"bounds.size.width", [](Structures& s) -> double& { return s.bounds.size.width; }},
    {"bounds.size.height", [](Structures& s) -> double& { return s.bounds.size.height; }},
    {"transform.scale", [](Structures& s) -> double& { return s.transform.scale.x; }},
    {"transform.scale.x", [](Structures& s) -> double& { return s.transform.scale.x; }},
    {"transform.scale.y", [](Structures& s) -> double& { return s.transform.scale.y; }},
    {"transform.rotation", [](Structures& s) -> double& { return s.transform.turn; }},
    {"transform.rotation.z", [](Structures& s) -> double& { return s.transform.turn; }},
    {"transform.translation.x", [](Structures& s) -> double& { return s.transform.move.x; }},
    {"transform.translation.y", [](Structures& s) -> double& { return s.transform.move.y; }},
};

const Member* memberNamed(std::string_view path) {
  const auto found = std::find_if(std::begin(members), std::end(members),
                                  [path](const Member& each) { return each.path == path; });
  return found != std::end(members) ? found : nullptr;
}

// Through the accessors, which tell the layer's view.
void store(Object layer, const Structures& changed, std::string_view structure) {
  if (structure == "position") objc::send<void, "setPosition:">(layer, changed.position);
  if (structure == "anchorPoint") objc::send<void, "setAnchorPoint:">(layer, changed.anchorPoint);
  if (structure == "bounds") objc::send<void, "setBounds:">(layer, changed.bounds);
  if (structure == "transform") objc::send<void, "setTransform:">(layer, changed.transform.whole());
}

}  // namespace

bool isLayerKeyPath(std::string_view path) {
  return memberNamed(path) != nullptr;
}

std::optional<double> layerMember(Object layer, std::string_view path) {
  const Member* member = memberNamed(path);
  if (member == nullptr) return std::nullopt;
  Structures structures(CALayer::of(layer).geometry);
  return member->of(structures);
}

bool setLayerMember(Object layer, std::string_view path, double value) {
  const Member* member = memberNamed(path);
  if (member == nullptr) return false;
  Structures structures(CALayer::of(layer).geometry);
  member->of(structures) = value;
  if (path == "transform.scale") structures.transform.scale.y = value;
  store(layer, structures, path.substr(0, path.find('.')));
  return true;
}

}  // namespace sim
