// A compiled layout that was read from a bundle, ready to be instantiated any number of times.
#pragma once

#include <string>

#include "objc/Ownership.h"

namespace sim {

struct NibFile {
  std::string bytes;
  std::string name;                   // for messages
  objc::Strong<objc::Object> bundle;  // where images are looked for

  // Raises the platform's exception when the bundle (nil: the main one) has no such layout.
  static NibFile named(objc::Object name, objc::Object bundle);

  // The outermost objects without the proxies, autoreleased. Raises when the file is none.
  objc::Object instantiate(objc::Object owner, objc::Object options) const;
};

}  // namespace sim
