// Variables that live as long as the process.
#pragma once

#include <new>

#include "objc/Once.h"

namespace objc {

// A global that is made when it is first used, by whatever thread, and never destroyed: it may be
// used before any initialiser has run, and nothing of ours runs while the host exits.
template <class T>
class Global {
 public:
  T& operator*() {
    dispatch_once_f(&made_, storage_, [](void* place) { new (place) T(); });
    return *std::launder(reinterpret_cast<T*>(storage_));
  }
  T* operator->() { return &**this; }

 private:
  long made_;
  alignas(T) unsigned char storage_[sizeof(T)];
};

}  // namespace objc
