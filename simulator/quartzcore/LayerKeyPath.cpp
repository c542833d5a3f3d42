#include "simulator/quartzcore/LayerKeyPath.h"

#include <algorithm>
#include <iterator>

#include "objc/Message.h"
#include "simulator/quartzcore/CALayer.h"
#include "simulator/quartzcore/PlaneTransform.h"

namespace sim {
namespace {

using objc::Object;

struct Structures {
  CGPoint position;
  CGPoint anchorPoint;
  CGRect bounds;
  PlaneTransform transform;

  explicit Structures(const LayerGeometry& from)
      : position(from.position),
        anchorPoint(from.anchorPoint),
        bounds(from.bounds),
        transform(from.transform.affine()) {}
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
  if (structure == "transform")
    objc::send<void, "setTransform:">(layer, CATransform3D::ofAffine(changed.transform.whole()));
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
