// Making stand-ins' objects, and looking into their state.
#pragma once

#include "objc/Class.h"

namespace sim {

template <class State>
bool isA(objc::Object object) {
  Class cls = object ? object_getClass(object.get()) : nullptr;
  while (cls != nullptr && cls != State::cls()) cls = class_getSuperclass(cls);
  return cls != nullptr;
}

// The state of an object of that class or a subclass; nullptr for nil and for others.
template <class State>
State* stateOf(objc::Object object) {
  return isA<State>(object) ? &State::of(object) : nullptr;
}

// What a factory method makes: an object of the class that was sent the message.
inline objc::Strong<objc::Object> makeOf(id cls) {
  return objc::adopt(objc::Object(objc_alloc_init(reinterpret_cast<Class>(cls))));
}

// copyWithZone: of what never changes.
inline objc::Object shareAsCopy(objc::Object self, void*) {
  return objc::Object(objc_retain(self.get()));
}

// copyWithZone: and mutableCopyWithZone: of collections: a `Made` with the same contents, +1.
template <class Made, class State, auto contents>
objc::Object copyAs(objc::Object self, void*) {
  auto copy = Made::make();
  State::of(copy.get()).*contents = State::of(self).*contents;
  return copy.detach();
}

// An initialiser that fails gives up the object it was sent to.
inline objc::Object failInit(id self) {
  objc_release(self);
  return nullptr;
}

}  // namespace sim
