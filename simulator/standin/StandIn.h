// Registration of the host classes' stand-ins, with a grade for each method.
//
//   StandIn<PCSimpleTimer>("PersistentConnection", "PCSimpleTimer", "NSObject")
//       .method<"invalidate", &PCSimpleTimer::invalidate>()                       // real
//       .partial<"scheduleInRunLoop:", &PCSimpleTimer::schedule>("ignores the run loop")
//       .stub<"setDisableSystemWaking:", void(bool)>()                            // only logs
//       .finish();
//
// A class, a method, or a property that the phone's set-up names as missing is not registered.
// Unlike the extension's classes, a stand-in's state is constructed and destroyed like any C++
// object.
#pragma once

#include <new>
#include <string>
#include <string_view>

#include "objc/Class.h"
#include "simulator/machine/Phone.h"
#include "simulator/standin/Fidelity.h"

namespace sim {

// The phone's one object of that class, made on first use: +mainRunLoop and the like. It does not
// end with the phone, as nothing of a host that is killed does.
template <class T>
objc::Object onlyObject() {
  struct Only {
    objc::Object object = T::make().detach();
  };
  return Phone::current().state<Only>().object;
}

// Journals "stub -[Class selector]".
void logStub(id receiver, SEL selector);

template <class Signature>
struct StubThunk;
template <class R, class... Args>
struct StubThunk<R(Args...)> {
  static constexpr std::size_t arguments = sizeof...(Args);
  static constexpr const auto& types = objc::pooled<objc::methodEncoding<R, Args...>>;
  static objc::Wire<R> call(id receiver, SEL selector, objc::Wire<Args>...) {
    logStub(receiver, selector);
    return objc::Wire<R>();
  }
};

template <class Self>
class StandIn {
 public:
  StandIn(const char* framework, const char* name, const char* superclass)
      : page_{framework, name},
        builder_(name, page_.isPresent() ? objc_getClass(superclass) : nullptr) {
    if (Class cls = objc::Implementation<Self>::cls())
      objc::addThunk<objc::Thunk<Self, &construct>>(object_getClass(reinterpret_cast<id>(cls)),
                                                    "alloc", "override");
  }

  template <objc::FixedString Name, auto function>
  StandIn& method() {
    return add<Name, function>({Grade::real, ""});
  }
  template <objc::FixedString Name, auto function>
  StandIn& partial(const char* difference) {
    return add<Name, function>({Grade::partial, difference});
  }
  template <objc::FixedString Name, class Signature>
  StandIn& stub() {
    if (page_.record('-', Name.c_str(), {Grade::stub, ""}))
      objc::addThunk<StubThunk<Signature>>(objc::Implementation<Self>::cls(), Name.c_str(),
                                           "override");
    return *this;
  }

  template <objc::FixedString Name, auto function>
  StandIn& classMethod() {
    return addClass<Name, function>({Grade::real, ""});
  }
  template <objc::FixedString Name, auto function>
  StandIn& partialClassMethod(const char* difference) {
    return addClass<Name, function>({Grade::partial, difference});
  }

  // `function` takes the class that was sent the message, as an id, and then the arguments: so the
  // factories of a class make subclasses' objects for subclasses.
  template <objc::FixedString Name, auto function>
  StandIn& factory() {
    using Method = objc::Thunk<Self, function>;
    static_assert(objc::argumentCount<Name> == Method::arguments,
                  "the selector has another number of colons than the function has arguments");
    Class cls = objc::Implementation<Self>::cls();
    if (page_.record('+', Name.c_str(), {Grade::real, ""}) && cls != nullptr)
      objc::addThunk<Method>(object_getClass(reinterpret_cast<id>(cls)), Name.c_str(),
                             "class method override");
    return *this;
  }

  template <objc::FixedString Name, auto member>
  StandIn& property() {
    if (page_.record('@', Name.c_str(), {Grade::real, ""}))
      builder_.template property<Name, member>();
    return *this;
  }
  template <objc::FixedString Name, auto member>
  StandIn& readonlyProperty() {
    if (page_.record('@', Name.c_str(), {Grade::real, ""}))
      builder_.template readonlyProperty<Name, member>();
    return *this;
  }

  // A BOOL as the platform declares its own: the property `hidden` is read with `isHidden`, and no
  // method is named like it.
  template <objc::FixedString Name, objc::FixedString Getter, auto member>
  StandIn& flag() {
    using Access = objc::Accessors<Self, member>;
    Class cls = objc::Implementation<Self>::cls();
    if (!page_.record('@', Name.c_str(), {Grade::real, ""}) || cls == nullptr) return *this;
    const objc_property_attribute_t attributes[] = {{"T", "B"}, {"G", Getter.c_str()}, {"N", ""}};
    class_addProperty(cls, Name.c_str(), attributes, std::size(attributes));
    objc::addMethod<Self, Getter, &Access::read>(cls);
    objc::addMethod<Self, objc::setterName<Name>(), &Access::write>(cls);
    return *this;
  }

  Class finish() { return builder_.finish(); }

 private:
  // +alloc of the superclass makes the object and constructs what belongs to it.
  static id construct(id cls) {
    Class metaclass = object_getClass(reinterpret_cast<id>(objc::Implementation<Self>::cls()));
    id made = objc::sendSuper<id, "alloc">(cls, metaclass);
    if (made != nullptr) new (&objc::Implementation<Self>::of(made)) Self();
    return made;
  }

  template <objc::FixedString Name, auto function>
  StandIn& add(const Rating& rating) {
    if (page_.record('-', Name.c_str(), rating)) builder_.template method<Name, function>();
    return *this;
  }
  template <objc::FixedString Name, auto function>
  StandIn& addClass(const Rating& rating) {
    if (page_.record('+', Name.c_str(), rating)) builder_.template classMethod<Name, function>();
    return *this;
  }

  FidelityPage page_;
  objc::ClassBuilder<Self> builder_;
};

}  // namespace sim
