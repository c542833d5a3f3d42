// A once-only guard that needs no C++ run-time library: libdispatch's.
#pragma once

#include <new>

extern "C" void dispatch_once_f(long* predicate, void* context, void (*function)(void*));

namespace objc {

// The one Strong<T> that `make` returns on the first call, by whatever thread. Never destroyed.
template <auto make>
auto& once() {
  using Single = decltype(make());
  static long predicate;
  alignas(Single) static unsigned char storage[sizeof(Single)];
  dispatch_once_f(&predicate, storage, [](void* place) { new (place) Single(make()); });
  return *reinterpret_cast<Single*>(storage);
}

}  // namespace objc
