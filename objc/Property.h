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

template <class Self, FixedString Name, auto member>
void addProperty(Class cls, bool readonly) {
  using Access = Accessors<Self, member>;
  if (cls == nullptr) return;
  static constexpr auto type = encode<typename Access::Value>();
  objc_property_attribute_t attributes[3] = {};
  unsigned int count = 0;
  attributes[count++] = {"T", type.c_str()};
  if (readonly)
    attributes[count++] = {"R", ""};
  else if (Access::Outside::ownership != nullptr)
    attributes[count++] = {Access::Outside::ownership, ""};
  attributes[count++] = {"N", ""};
  class_addProperty(cls, Name.c_str(), attributes, count);
  addMethod<Self, Name, &Access::read>(cls);
  if (!readonly) addMethod<Self, setterName<Name>(), &Access::write>(cls);
}

// A read-only property that nothing stores: `getter` is a member function without arguments.
template <class Self, FixedString Name, auto getter>
void addComputedProperty(Class cls) {
  if (cls == nullptr) return;
  static constexpr auto type = encode<std::invoke_result_t<decltype(getter), Self&>>();
  const objc_property_attribute_t attributes[] = {{"T", type.c_str()}, {"R", ""}, {"N", ""}};
  class_addProperty(cls, Name.c_str(), attributes, 3);
  addMethod<Self, Name, getter>(cls);
}

// A property of a host class, with functions as accessors; their first parameter is the receiver.
// `type` is the "T" attribute, which may name a class: @"NSString". Objects are marked as owned.
template <FixedString Name, auto getter, auto setter>
void addAttachedProperty(Class cls, const char* type) {
  if (cls == nullptr) return;
  objc_property_attribute_t attributes[3] = {};
  unsigned int count = 0;
  attributes[count++] = {"T", type};
  if (type[0] == '@') attributes[count++] = {"&", ""};
  attributes[count++] = {"N", ""};
  class_addProperty(cls, Name.c_str(), attributes, count);
  addMethod<Name, getter>(cls);
  addMethod<setterName<Name>(), setter>(cls);
}

}  // namespace objc
