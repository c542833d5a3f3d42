// The symbols on Control Center's modules.
#pragma once

#include "objc/Ownership.h"
#include "simulator/coregraphics/Geometry.h"

namespace sim {

// The first ones in the order of modulePlaces(), then those of the radios.
enum class ModuleSymbol {
  none,
  music,
  orientationLock,
  otherScreen,
  brightness,
  volume,
  focus,
  torch,
  alarm,
  calculator,
  camera,
  airplane,
  mobileData,
  wifi,
  bluetooth,
};

// Around that point of the view; the view that draws it.
objc::Strong<objc::Object> addModuleSymbol(objc::Object view, ModuleSymbol symbol, CGPoint centre,
                                           objc::Object color);

}  // namespace sim
