// Methods from C++ functions: the functions that the runtime calls, and their registration.
#pragma once

#include <type_traits>

#include "objc/Check.h"
#include "objc/Message.h"

namespace objc {

template <class Self>
class Implementation;

// The C function behind a method. Specialised by the shape of the C++ function; `function` is a
// template argument, never a stored pointer, because arm64e builds cannot link stored ones.
template <class Self, auto function, class Shape = decltype(function)>
struct Thunk;

template <class Self, auto function, class R, class Owner, class... Args>
struct Thunk<Self, function, R (Owner::*)(Args...)> {
  static constexpr std::size_t arguments = sizeof...(Args);
  static constexpr const auto& types = pooled<methodEncoding<R, Args...>>;
  static Wire<R> call(id object, SEL, Wire<Args>... args) {
    Self& self = Implementation<Self>::of(object);
    if constexpr (std::is_void_v<R>)
      (self.*function)(fromWire<Args>(args)...);
    else
      return toWire<R>((self.*function)(fromWire<Args>(args)...));
  }
};

template <class Self, auto function, class R, class Owner, class... Args>
struct Thunk<Self, function, R (Owner::*)(Args...) const>
    : Thunk<Self, function, R (Owner::*)(Args...)> {};

// A function whose first parameter is the receiver.
template <class Self, auto function, class R, class Receiver, class... Args>
struct Thunk<Self, function, R (*)(Receiver, Args...)> {
  static_assert(std::is_same_v<Wire<Receiver>, id>, "the first parameter is the receiver");
  static constexpr std::size_t arguments = sizeof...(Args);
  static constexpr const auto& types = pooled<methodEncoding<R, Args...>>;
  static Wire<R> call(id object, SEL, Wire<Args>... args) {
    if constexpr (std::is_void_v<R>)
      function(fromWire<Receiver>(object), fromWire<Args>(args)...);
    else
      return toWire<R>(function(fromWire<Receiver>(object), fromWire<Args>(args)...));
  }
};

// A class method: the function takes the message's arguments alone.
template <auto function, class Shape = decltype(function)>
struct ClassThunk;

// A function that hands out the one instance of a class written in C++.
template <auto function, class Self>
struct ClassThunk<function, Self& (*)()> {
  static constexpr std::size_t arguments = 0;
  static constexpr const auto& types = pooled<methodEncoding<id>>;
  static id call(id, SEL) { return function().self(); }
};

template <auto function, class R, class... Args>
requires(!std::is_reference_v<R>) struct ClassThunk<function, R (*)(Args...)> {
  static constexpr std::size_t arguments = sizeof...(Args);
  static constexpr const auto& types = pooled<methodEncoding<R, Args...>>;
  static Wire<R> call(id, SEL, Wire<Args>... args) {
    if constexpr (std::is_void_v<R>)
      function(fromWire<Args>(args)...);
    else
      return toWire<R>(function(fromWire<Args>(args)...));
  }
};

// For all methods the same, and not inline: what differs is four arguments.
[[gnu::noinline]] inline bool addFunction(Class cls, const char* name, IMP function,
                                          const char* types) {
  return cls != nullptr && class_addMethod(cls, sel_registerName(name), function, types);
}

// False when the class is nil or has a method of its own under that name.
template <class Method>
bool addThunk(Class cls, const char* name, const char* action) {
  if constexpr (checksTypes)
    checkAgainstClass(action, cls, sel_registerName(name), Method::types.c_str());
  return addFunction(cls, name, reinterpret_cast<IMP>(&Method::call), Method::types.c_str());
}

template <class Self, FixedString Name, auto function>
bool addMethod(Class cls, const char* action = "addition") {
  using Method = Thunk<Self, function>;
  static_assert(argumentCount<Name> == Method::arguments,
                "the selector has another number of colons than the function has arguments");
  return addThunk<Method>(cls, pooled<Name>.c_str(), action);
}

// Adds a method to a class of the host; the function's first parameter is the receiver.
template <FixedString Name, auto function>
bool addMethod(Class cls) {
  return addMethod<void, Name, function>(cls);
}

template <FixedString Name, auto function>
bool addClassMethod(Class cls) {
  using Method = ClassThunk<function>;
  static_assert(argumentCount<Name> == Method::arguments,
                "the selector has another number of colons than the function has arguments");
  if (cls == nullptr) return false;
  return addThunk<Method>(object_getClass(reinterpret_cast<id>(cls)), pooled<Name>.c_str(),
                          "class method override");
}

}  // namespace objc
