#include "simulator/foundation/invocation/CallTypes.h"

#include <utility>

namespace sim {

ffi_type* CallTypes::of(const TypeEncoding& type) {
  switch (type.kind) {
    case 'v':
      return &ffi_type_void;
    case 'c':
      return &ffi_type_sint8;
    case 'C':
    case 'B':
      return &ffi_type_uint8;
    case 's':
      return &ffi_type_sint16;
    case 'S':
      return &ffi_type_uint16;
    case 'i':
      return &ffi_type_sint32;
    case 'I':
      return &ffi_type_uint32;
    case 'l':
    case 'q':
      return &ffi_type_sint64;
    case 'L':
    case 'Q':
      return &ffi_type_uint64;
    case 'f':
      return &ffi_type_float;
    case 'd':
      return &ffi_type_double;
    case '{':
      return structure(type);
    default:
      return &ffi_type_pointer;
  }
}

ffi_type* CallTypes::structure(const TypeEncoding& type) {
  std::vector<ffi_type*> elements;
  for (const TypeEncoding& member : type.members) elements.push_back(of(member));
  elements.push_back(nullptr);
  elements_.push_back(std::move(elements));
  structures_.push_back({0, 0, FFI_TYPE_STRUCT, elements_.back().data()});
  return &structures_.back();
}

}  // namespace sim
