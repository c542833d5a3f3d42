// C functions of the host's frameworks, looked up by name when they are used, like its classes:
// one that does not exist must not keep the extension from loading.
#pragma once

#include <dlfcn.h>

#include "objc/FixedString.h"

namespace platform {

// nullptr when no loaded library exports the name.
template <objc::FixedString Name, class Signature>
Signature* hostFunction() {
  return reinterpret_cast<Signature*>(dlsym(RTLD_DEFAULT, objc::pooled<Name>.c_str()));
}

// The value of an exported variable; value-initialised when there is none of that name.
template <objc::FixedString Name, class T>
T hostConstant() {
  auto* address = static_cast<T*>(dlsym(RTLD_DEFAULT, objc::pooled<Name>.c_str()));
  return address != nullptr ? *address : T();
}

}  // namespace platform
