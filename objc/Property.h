// Declared properties backed by a member of a class written in C++.
#pragma once

#include "objc/Method.h"
#include "objc/Ownership.h"

namespace objc {

// "count" -> "setCount:"
template <FixedString Name>
constexpr auto setterName() {
  FixedString<Name.size() + 4> setter;
  const auto joined = FixedString("set") + Name + FixedString(":");
  for (std::size_t i = 0; i < joined.size(); ++i) setter.text[i] = joined.text[i];
  if (setter.text[3] >= 'a' && setter.text[3] <= 'z') setter.text[3] -= 'a' - 'A';
  return setter;
}

template <class Member>
struct MemberType;
template <class Value, class Owner>
struct MemberType<Value Owner::*> {
  using type = Value;
};

// How a member is seen from outside: owners hand out their view.
template <class T>
struct Exposed {
  using type = T;
  static constexpr const char* ownership = nullptr;
  static T read(const T& value) { return value; }
  static T store(T value) { return value; }
};
template <class T>
struct Exposed<Strong<T>> {
  using type = T;
  static constexpr const char* ownership = "&";
  static T read(const Strong<T>& value) { return value.get(); }
  static Strong<T> store(T value) { return retain(value); }
};
template <class T>
struct Exposed<Weak<T>> {
  using type = T;
  static constexpr const char* ownership = "W";
  static T read(const Weak<T>& value) { return autorelease(value.load()); }
  static Weak<T> store(T value) { return weak(value); }
};

template <class Self, auto member>
struct Accessors {
  using Stored = typename MemberType<decltype(member)>::type;
  using Outside = Exposed<Stored>;
  using Value = typename Outside::type;

  static Value read(id object) { return Outside::read(Implementation<Self>::of(object).*member); }
  static void write(id object, Value value) {
    Implementation<Self>::of(object).*member = Outside::store(value);
  }
};

// The declaration; for all properties the same, and not inline. `kind` is "R" for a property that
// is read-only, "&" or "W" for how its object is owned, and nullptr for none of these.
[[gnu::noinline]] inline void declareProperty(Class cls, const char* name, const char* type,
                                              const char* kind) {
  if (cls == nullptr) return;
  objc_property_attribute_t attributes[3] = {{"T", type}};
  unsigned int count = 1;
  if (kind != nullptr) attributes[count++] = {kind, ""};
  attributes[count++] = {"N", ""};
  class_addProperty(cls, name, attributes, count);
}

template <class Self, FixedString Name, auto member>
void addReadonlyProperty(Class cls) {
  using Access = Accessors<Self, member>;
  declareProperty(cls, pooled<Name>.c_str(), pooled<encode<typename Access::Value>()>.c_str(), "R");
  addMethod<Self, Name, &Access::read>(cls);
}

template <class Self, FixedString Name, auto member>
void addProperty(Class cls) {
  using Access = Accessors<Self, member>;
  declareProperty(cls, pooled<Name>.c_str(), pooled<encode<typename Access::Value>()>.c_str(),
                  Access::Outside::ownership);
  addMethod<Self, Name, &Access::read>(cls);
  addMethod<Self, setterName<Name>(), &Access::write>(cls);
}

// A read-only property that nothing stores: `getter` is a member function without arguments.
template <class Self, FixedString Name, auto getter>
void addComputedProperty(Class cls) {
  using Value = std::invoke_result_t<decltype(getter), Self&>;
  declareProperty(cls, pooled<Name>.c_str(), pooled<encode<Value>()>.c_str(), "R");
  addMethod<Self, Name, getter>(cls);
}

// A property of a host class, with functions as accessors; their first parameter is the receiver.
// `type` is the "T" attribute, which may name a class: @"NSString". Objects are marked as owned.
template <FixedString Name, auto getter, auto setter>
void addAttachedProperty(Class cls, const char* type) {
  declareProperty(cls, pooled<Name>.c_str(), type, type[0] == '@' ? "&" : nullptr);
  addMethod<Name, getter>(cls);
  addMethod<setterName<Name>(), setter>(cls);
}

}  // namespace objc
