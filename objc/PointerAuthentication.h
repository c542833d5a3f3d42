// Signing of the code pointers that blocks store, for phones that authenticate pointers.
//
// The schemas are those of the platform's block ABI on arm64e: a block's isa is signed with the
// data key over its address blended with 0x6AE1; invoke and dispose helpers with the instruction
// key over the address they are stored at. Elsewhere pointers are stored as they are.
#pragma once

#include <type_traits>

#include "objc/runtime.h"

#if defined(__has_feature)
#if __has_feature(ptrauth_calls)
#define OBJC_POINTER_AUTHENTICATION 1
#endif
#endif

#if defined(__aarch64__) && !defined(__APPLE__)
// Whether pointers are signed is known there only when the program runs, and its runtime knows how.
#define OBJC_RUNTIME_SIGNS 1
extern "C" {
void* objc_simulatorSignedIsa(void* cls, const void* slot);
void* objc_simulatorSignedFunction(void* plain, const void* slot);
void* objc_simulatorAuthenticatedFunction(void* given, const void* slot);
}
#endif

namespace objc {

inline void storeBlockClass(void** slot, void* cls) {
#ifdef OBJC_POINTER_AUTHENTICATION
  constexpr int dataKeyA = 2;
  *slot = __builtin_ptrauth_sign_unauthenticated(
      cls, dataKeyA, __builtin_ptrauth_blend_discriminator(slot, 0x6AE1));
#elif defined(OBJC_RUNTIME_SIGNS)
  *slot = objc_simulatorSignedIsa(cls, slot);
#else
  *slot = cls;
#endif
}

// `function` is an ordinary function pointer, signed without address on arm64e.
template <class Function>
void storeBlockFunction(void** slot, Function function) {
#ifdef OBJC_POINTER_AUTHENTICATION
  *slot = __builtin_ptrauth_auth_and_resign(reinterpret_cast<void*>(function), 0, 0, 0, slot);
#elif defined(OBJC_RUNTIME_SIGNS)
  *slot = objc_simulatorSignedFunction(reinterpret_cast<void*>(function), slot);
#else
  *slot = reinterpret_cast<void*>(function);
#endif
}

template <class Function>
Function loadBlockFunction(void* const* slot) {
#ifdef OBJC_POINTER_AUTHENTICATION
  return reinterpret_cast<Function>(__builtin_ptrauth_auth_and_resign(*slot, 0, slot, 0, 0));
#elif defined(OBJC_RUNTIME_SIGNS)
  return reinterpret_cast<Function>(objc_simulatorAuthenticatedFunction(*slot, slot));
#else
  return reinterpret_cast<Function>(*slot);
#endif
}

}  // namespace objc
