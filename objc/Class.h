// Objective-C classes written in C++.
//
// A class is a struct that holds its state and member functions:
//
//   struct Counter : objc::Implementation<Counter> {
//     long count;
//     objc::Strong<NSString> label;
//     void add(long n) { count += n; }
//
//     static Class registerClass() {
//       return objc::ClassBuilder<Counter>("Counter", "NSObject")
//           .method<"add:", &Counter::add>()
//           .property<"count", &Counter::count>()
//           .finish();
//     }
//   };
//
// The state lives inside the Objective-C object, in one instance variable. The runtime fills it
// with zeroes instead of running a constructor, so a state must be valid, and empty, when all its
// bytes are zero; its destructor runs in dealloc.
#pragma once

#include <bit>
#include <cstring>
#include <type_traits>

#include "objc/ClassDefinition.h"
#include "objc/Method.h"
#include "objc/Once.h"
#include "objc/Property.h"
#include "objc/Registration.h"
#include "objc/Retained.h"

namespace objc {

// What the member functions of a class written in C++ know about their object.
template <class Self>
class Implementation {
 public:
  // The object that holds this state. It does not keep the object: what runs after the member has
  // returned captures retained() instead of this or self().
  id self() const {
    auto address = reinterpret_cast<std::uintptr_t>(static_cast<const Self*>(this));
    return reinterpret_cast<id>(address - std::uintptr_t(offset_));
  }

  // The state inside an object of this class or a subclass; the object must not be nil.
  static Self& of(id object) {
    return *reinterpret_cast<Self*>(reinterpret_cast<char*>(object) + offset_);
  }
  static Self& of(Object object) { return of(object.get()); }

  // This state and a reference to its object, for a block of the object's own:
  //
  //   dispatch::onMain([counter = retained()] { counter->add(1); });
  [[nodiscard]] Retained<Self> retained() const { return Retained<Self>(Object(self())); }

  // nil until the class is registered.
  static Class cls() { return class_; }

  // A new object, alloc and init: the caller owns it. Empty when the class is not registered.
  template <View T = Object>
  [[nodiscard]] static Strong<T> make() {
    return adopt(T(objc_alloc_init(class_)));
  }

  // The one instance of a class that has only one: made on first use under a once-only guard,
  // never destroyed. The class must be registered.
  static Self& shared() { return of(once<&make<Object>>().get()); }

 protected:
  // The inherited behaviour of a method that this class overrides.
  template <class R, FixedString Name, class... Args>
  R super(Args... args) const {
    return sendSuper<R, Name>(self(), class_, args...);
  }

 private:
  template <class>
  friend class ClassBuilder;
  static inline Class class_;
  static inline std::ptrdiff_t offset_;  // of the state inside the object, bytes
};

// The runtime gives objects memory of this alignment, whatever their state asks for.
inline constexpr std::size_t objectAlignment = 16;

// Registers one class. When the base does not exist, or the name is taken, nothing is registered
// and finish() gives no class but the reason. Names live as long as the program.
template <class Self>
class ClassBuilder {
 public:
  ClassBuilder(const char* name, const char* superclass)
      : ClassBuilder(name, objc_getClass(superclass)) {}

  ClassBuilder(const char* name, Class superclass)
      : definition_(name, superclass, sizeof(Self), std::uint8_t(std::countr_zero(alignof(Self)))) {
    static_assert(
        alignof(Self) <= objectAlignment,
        "a state is aligned to 16 bytes at most, as objects are: hold the rest by pointer");
    if (definition_.get() == nullptr) return;
    Implementation<Self>::class_ = definition_.get();
    method<"dealloc", &destroy>();
  }

  // `function` is a member function, or a function whose first parameter is the receiver
  // (a view, or id).
  template <FixedString Name, auto function>
  ClassBuilder& method() {
    addMethod<Self, Name, function>(definition_.get(), "override");
    return *this;
  }

  // `function` takes the message's arguments alone.
  template <FixedString Name, auto function>
  ClassBuilder& classMethod() {
    addClassMethod<Name, function>(definition_.get());
    return *this;
  }

  // A member variable as a declared property: `name`, `setName:` and the property itself.
  // Strong members are retained by the setter. An accessor of that name that the class has been
  // given before is kept.
  template <FixedString Name, auto member>
  ClassBuilder& property() {
    addProperty<Self, Name, member>(definition_.get());
    return *this;
  }

  template <FixedString Name, auto member>
  ClassBuilder& readonlyProperty() {
    addReadonlyProperty<Self, Name, member>(definition_.get());
    return *this;
  }

  // `getter` is a member function without arguments.
  template <FixedString Name, auto getter>
  ClassBuilder& computedProperty() {
    addComputedProperty<Self, Name, getter>(definition_.get());
    return *this;
  }

  Registration finish() {
    if (definition_.get() == nullptr) return Registration(definition_.refusal());
    Implementation<Self>::offset_ = definition_.finish();
    return Registration(&Implementation<Self>::class_);
  }

 private:
  // A superclass may message an overridden method on its way out, and the destructor of one member
  // may come back before the next has run. Owners empty themselves before they let go; at the end
  // the whole state is what it was at the beginning, and so is valid again.
  static void destroy(id object) {
    Self* state = &Implementation<Self>::of(object);
    state->~Self();
    std::memset(static_cast<void*>(state), 0, sizeof(Self));
    // Writes to an object that has ended count for nothing, unless somebody may look.
    asm volatile("" : : "r"(state) : "memory");
    sendSuper<void, "dealloc">(object, Implementation<Self>::class_);
  }

  ClassDefinition definition_;
};

}  // namespace objc
