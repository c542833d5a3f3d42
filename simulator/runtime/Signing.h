// Pointers that are signed as on the phones whose processors authenticate them (arm64e), for
// extensions that were compiled for those. Off for everything else: what stands here then gives and
// takes pointers as they are, and on x86-64 it is nothing at all.
//
// The runtime's own code is compiled without signatures, so functions that it keeps for itself (in
// method lists and caches) are plain, and it signs what it hands to such an extension. What lies in
// objects, which both read, is signed where it lies.
//
//   isa of every object   data key A, the place of the isa blended with 0x6AE1
//   a block's function and helpers   instruction key A, the place where they are stored
//   function pointers     instruction key A, 0
#pragma once

#include <cstdint>

#include "objc/runtime.h"

namespace sim::runtime {

#if defined(__aarch64__)
extern "C" [[gnu::visibility("hidden")]] bool simulatorRuntimeSigns;  // read by the assembly, too

inline bool signs() {
  return simulatorRuntimeSigns;
}
#else
constexpr bool signs() {
  return false;
}
#endif

// Whether this machine's processor can.
bool processorSigns();

// From now on, for the life of the process. Called before the first object and block are made, on
// the only thread there is; the classes that there are by then are signed. Only where
// processorSigns().
void beginSigning();

// Where !signs() the following give back what they get. What `what` names ends the program when it
// is not signed as it must be. nullptr is never signed.
void* signedFunction(void* plain, const void* slot = nullptr);
void* authenticatedFunction(void* given, const char* what, const void* slot = nullptr);
void* signedIsa(void* cls, const void* slot);
void* authenticatedIsa(void* isa, const void* slot);

// The isa of an object, a class or a block.
template <class T>
T* loadIsa(T*& slot) {
  T* isa = __atomic_load_n(&slot, __ATOMIC_RELAXED);
  return signs() ? static_cast<T*>(authenticatedIsa(isa, &slot)) : isa;
}

template <class T>
void storeIsa(T*& slot, T* cls) {
  __atomic_store_n(&slot, signs() ? static_cast<T*>(signedIsa(cls, &slot)) : cls, __ATOMIC_RELAXED);
}

// The previous one.
template <class T>
T* exchangeIsa(T*& slot, T* cls) {
  T* isa = __atomic_exchange_n(&slot, signs() ? static_cast<T*>(signedIsa(cls, &slot)) : cls,
                               __ATOMIC_SEQ_CST);
  return signs() ? static_cast<T*>(authenticatedIsa(isa, &slot)) : isa;
}

}  // namespace sim::runtime
