// libffi's description of the types that methods are registered with.
#pragma once

#include <ffi.h>

#include <deque>
#include <vector>

#include "simulator/foundation/TypeEncoding.h"

namespace sim {

// Structures need storage that lives as long as what libffi prepared with them.
class CallTypes {
 public:
  ffi_type* of(const TypeEncoding& type);

 private:
  ffi_type* structure(const TypeEncoding& type);

  // Deques: growing moves nothing.
  std::deque<std::vector<ffi_type*>> elements_;
  std::deque<ffi_type> structures_;
};

}  // namespace sim
