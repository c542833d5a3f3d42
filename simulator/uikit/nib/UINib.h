#pragma once

#include "objc/Class.h"
#include "simulator/uikit/nib/NibFile.h"

namespace sim {

struct UINib : objc::Implementation<UINib> {
  NibFile file;

  objc::Object instantiate(objc::Object owner, objc::Object options);

  static void registerClass();
};

}  // namespace sim
