// Variables that live as long as the process.
#pragma once

namespace objc {

// A global of a type that is valid when all its bytes are zero. It is ready before any
// initialiser runs and is never destroyed: nothing of ours runs while the host exits.
template <class T>
class Global {
 public:
  T& operator*() { return *reinterpret_cast<T*>(storage_); }
  T* operator->() { return &**this; }

 private:
  alignas(T) unsigned char storage_[sizeof(T)];
};

}  // namespace objc
