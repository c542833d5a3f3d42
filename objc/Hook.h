// Hooks on methods of the host.
//
//   void viewDidLoad(objc::Original<void(MRUNowPlayingViewController)> original,
//                    MRUNowPlayingViewController self) {
//     original(self);
//     ...
//   }
//   objc::hook<"MRUNowPlayingViewController", "viewDidLoad", viewDidLoad>();
#pragma once

#include "objc/Method.h"

namespace objc {

template <class Signature>
class Original;

// The implementation that a hook replaced, with the selector it was called by.
template <class R, class Self, class... Args>
class Original<R(Self, Args...)> {
 public:
  Original(IMP implementation, SEL selector)
      : implementation_(implementation), selector_(selector) {}

  SEL selector() const { return selector_; }

  // The hook function goes live an instant before it stores the previous implementation: a call
  // in between gets a value-initialised result. Host and extension name the same structures each
  // by its own type, which the sanitizer that compares function types cannot know.
#if defined(__clang__)
  __attribute__((no_sanitize("function")))
#endif
  R operator()(Self self, Args... args) const {
    if (implementation_ == nullptr) return R();
    auto call = reinterpret_cast<Wire<R> (*)(id, SEL, Wire<Args>...)>(implementation_);
    if constexpr (std::is_void_v<R>)
      call(self.get(), selector_, toWire<Args>(args)...);
    else
      return fromWire<R>(call(self.get(), selector_, toWire<Args>(args)...));
  }

 private:
  IMP implementation_;
  SEL selector_;
};

// The method that takes the place of the host's, and the slot for what it replaced. `Site` makes
// the slot one of its own even where a function serves two hooks.
template <class Site, auto function, class Shape = decltype(function)>
struct Replacement {
  static_assert(sizeof(Site) == 0,
                "a hook takes Original<R(Self, Args...)>, Self, Args... and returns R");
};

template <class Site, auto function, class R, class Self, class... Args>
struct Replacement<Site, function, R (*)(Original<R(Self, Args...)>, Self, Args...)> {
  static_assert(std::is_base_of_v<Object, Self>, "the second parameter is the receiver's view");
  static constexpr std::size_t arguments = sizeof...(Args);
  static constexpr const auto& types = pooled<methodEncoding<R, Args...>>;
  static inline IMP previous;  // empty when there was nothing to replace

  static Wire<R> call(id object, SEL name, Wire<Args>... args) {
    Original<R(Self, Args...)> original(previous, name);
    if constexpr (std::is_void_v<R>)
      function(original, fromWire<Self>(object), fromWire<Args>(args)...);
    else
      return toWire<R>(function(original, fromWire<Self>(object), fromWire<Args>(args)...));
  }
};

template <FixedString ClassName, FixedString Name>
struct HookSite {};

// For all hooks the same, and not inline. `types` is the encoding of the replacement.
[[gnu::noinline]] inline bool replaceMethod(const char* className, const char* method,
                                            IMP replacement, IMP* previous, const char* types) {
  Class cls = objc_getClass(className);
  if (cls == nullptr) return false;
  const SEL name = sel_registerName(method);
  // The hook function, too, looks for a class method where no instance method has the name.
  const bool ofInstances = class_getInstanceMethod(cls, name) != nullptr;
  checkAgainstClass("hook", ofInstances ? cls : object_getClass(reinterpret_cast<id>(cls)), name,
                    types);
  MSHookMessageEx(cls, name, replacement, previous);
  return *previous != nullptr;
}

// Replaces the class's implementation of the method. An absent class or method leaves everything
// as it was: the feature is missing, silently. True when the method was replaced.
template <FixedString ClassName, FixedString Name, auto function>
bool hook() {
  using Method = Replacement<HookSite<ClassName, Name>, function>;
  static_assert(argumentCount<Name> == Method::arguments,
                "the selector has another number of colons than the function has arguments");
  return replaceMethod(pooled<ClassName>.c_str(), pooled<Name>.c_str(),
                       reinterpret_cast<IMP>(&Method::call), &Method::previous,
                       Method::types.c_str());
}

}  // namespace objc
