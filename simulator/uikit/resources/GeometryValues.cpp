#include "simulator/uikit/resources/GeometryValues.h"

#include "objc/Method.h"
#include "simulator/coregraphics/Geometry.h"
#include "simulator/foundation/NSValue.h"
#include "simulator/standin/Fidelity.h"

namespace sim {
namespace {

template <class Structure>
objc::Object boxed(Structure structure) {
  return valueOf(&structure, objc::encode<Structure>().c_str());
}

// Zeroes from a value of another type, which the platform would read past its end.
template <class Structure>
Structure unboxed(objc::Object value) {
  Structure structure{};
  const NSValue& state = NSValue::of(value);
  if (state.bytes.size() == sizeof structure) state.getValue(&structure);
  return structure;
}

template <class Structure, objc::FixedString Factory, objc::FixedString Getter>
void add() {
  const FidelityPage page("UIKit", "NSValue");
  const Class cls = objc_getClass("NSValue");
  if (page.record('+', Factory.c_str(), {Grade::real, ""}))
    objc::addClassMethod<Factory, &boxed<Structure>>(cls);
  if (page.record('-', Getter.c_str(), {Grade::real, ""}))
    objc::addMethod<Getter, &unboxed<Structure>>(cls);
}

}  // namespace

void addGeometryValues() {
  add<CGPoint, "valueWithCGPoint:", "CGPointValue">();
  add<CGSize, "valueWithCGSize:", "CGSizeValue">();
  add<CGRect, "valueWithCGRect:", "CGRectValue">();
}

}  // namespace sim
