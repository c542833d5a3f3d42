#include "simulator/runtime/NSObject.h"

#include <cstdint>

#include "simulator/runtime/AutoreleasePool.h"
#include "simulator/runtime/Class.h"
#include "simulator/runtime/Fatal.h"
#include "simulator/runtime/ReferenceCounting.h"
#include "simulator/runtime/Send.h"
#include "simulator/runtime/ShownAddresses.h"

namespace sim::runtime {
namespace {

// As compilers for phones read it: they look at more of the register than at its last byte.
using Bool = int;

// Life.
id alloc(id self, SEL) {
  static const SEL allocWithZone = sel_registerName("allocWithZone:");
  return send<id>(self, allocWithZone, static_cast<void*>(nullptr));
}
id allocWithZone(id self, SEL, void*) {
  return class_createInstance(asClass(self), 0);
}
id makeNew(id self, SEL) {
  return objc_alloc_init(asClass(self));
}
id init(id self, SEL) {
  return self;
}
void initialize(id, SEL) {}
void dealloc(id self, SEL) {
  object_dispose(self);
}
id retain(id self, SEL) {
  return retainInstance(self);
}
void release(id self, SEL) {
  releaseInstance(self);
}
id autorelease(id self, SEL) {
  return addToAutoreleasePool(self);
}
std::size_t retainCount(id self, SEL) {
  return instanceRetainCount(self);
}
id copy(id self, SEL) {
  static const SEL copyWithZone = sel_registerName("copyWithZone:");
  return send<id>(self, copyWithZone, static_cast<void*>(nullptr));
}
id mutableCopy(id self, SEL) {
  static const SEL mutableCopyWithZone = sel_registerName("mutableCopyWithZone:");
  return send<id>(self, mutableCopyWithZone, static_cast<void*>(nullptr));
}

// Class objects live forever and are their own copies.
id keepClass(id self, SEL) {
  return self;
}
id keepClassWithZone(id self, SEL, void*) {
  return self;
}
void ignoreClass(id, SEL) {}
std::size_t endlessRetainCount(id, SEL) {
  return SIZE_MAX;
}

// Kinship. Instance methods of the root class serve class objects too, whose class is a metaclass.
Class classOfInstance(id self, SEL) {
  return object_getClass(self);
}
Class classOfClass(id self, SEL) {
  return asClass(self);
}
Class superclassOfInstance(id self, SEL) {
  return class_getSuperclass(object_getClass(self));
}
Class superclassOfClass(id self, SEL) {
  return class_getSuperclass(asClass(self));
}
bool inherits(Class cls, Class from) {
  while (cls != nullptr && cls != from) cls = class_getSuperclass(cls);
  return cls != nullptr;
}
Bool isKindOfClass(id self, SEL, Class cls) {
  return inherits(object_getClass(self), cls);
}
Bool isMemberOfClass(id self, SEL, Class cls) {
  return object_getClass(self) == cls;
}
Bool isSubclassOfClass(id self, SEL, Class cls) {
  return inherits(asClass(self), cls);
}
bool anyConforms(Class cls, Protocol* protocol) {
  while (cls != nullptr && !class_conformsToProtocol(cls, protocol)) cls = class_getSuperclass(cls);
  return cls != nullptr;
}
Bool conformsToProtocol(id self, SEL, Protocol* protocol) {
  return anyConforms(object_getClass(self), protocol);
}
Bool classConformsToProtocol(id self, SEL, Protocol* protocol) {
  return anyConforms(asClass(self), protocol);
}
Bool isProxy(id, SEL) {
  return false;
}

// Methods by name.
Bool respondsToSelector(id self, SEL, SEL selector) {
  return class_respondsToSelector(object_getClass(self), selector);
}
Bool instancesRespondToSelector(id self, SEL, SEL selector) {
  return class_respondsToSelector(asClass(self), selector);
}
IMP methodForSelector(id self, SEL, SEL selector) {
  return class_getMethodImplementation(object_getClass(self), selector);
}
IMP instanceMethodForSelector(id self, SEL, SEL selector) {
  return class_getMethodImplementation(asClass(self), selector);
}
id performSelector(id self, SEL, SEL selector) {
  return send<id>(self, selector);
}
id performSelectorWithObject(id self, SEL, SEL selector, id argument) {
  return send<id>(self, selector, argument);
}
id performSelectorWithObjects(id self, SEL, SEL selector, id first, id second) {
  return send<id>(self, selector, first, second);
}
Bool resolveNoMethod(id, SEL, SEL) {
  return false;
}
id forwardNowhere(id, SEL, SEL) {
  return nullptr;
}
void doesNotRecognizeSelector(id self, SEL, SEL selector) {
  unrecognizedSelector(self, selector);
}

// Identity.
id itself(id self, SEL) {
  return self;
}
Bool isEqual(id self, SEL, id other) {
  return self == other;
}
std::size_t hash(id self, SEL) {
  return shownAddress(self);
}

template <class Function>
void add(Class cls, const char* name, Function* function, const char* types) {
  class_addMethod(cls, sel_registerName(name), reinterpret_cast<IMP>(function), types);
}

void addInstanceMethods(Class cls) {
  add(cls, "init", &init, "@@:");
  add(cls, "dealloc", &dealloc, "v@:");
  add(cls, "retain", &retain, "@@:");
  add(cls, "release", &release, "v@:");
  add(cls, "autorelease", &autorelease, "@@:");
  add(cls, "retainCount", &retainCount, "Q@:");
  add(cls, "copy", &copy, "@@:");
  add(cls, "mutableCopy", &mutableCopy, "@@:");
  add(cls, "class", &classOfInstance, "#@:");
  add(cls, "superclass", &superclassOfInstance, "#@:");
  add(cls, "isKindOfClass:", &isKindOfClass, "B@:#");
  add(cls, "isMemberOfClass:", &isMemberOfClass, "B@:#");
  add(cls, "conformsToProtocol:", &conformsToProtocol, "B@:@");
  add(cls, "isProxy", &isProxy, "B@:");
  add(cls, "respondsToSelector:", &respondsToSelector, "B@::");
  add(cls, "methodForSelector:", &methodForSelector, "^?@::");
  add(cls, "performSelector:", &performSelector, "@@::");
  add(cls, "performSelector:withObject:", &performSelectorWithObject, "@@::@");
  add(cls, "performSelector:withObject:withObject:", &performSelectorWithObjects, "@@::@@");
  add(cls, "forwardingTargetForSelector:", &forwardNowhere, "@@::");
  add(cls, "doesNotRecognizeSelector:", &doesNotRecognizeSelector, "v@::");
  add(cls, "self", &itself, "@@:");
  add(cls, "isEqual:", &isEqual, "B@:@");
  add(cls, "hash", &hash, "Q@:");
}

void addClassMethods(Class metaclass) {
  add(metaclass, "initialize", &initialize, "v@:");
  add(metaclass, "alloc", &alloc, "@@:");
  add(metaclass, "allocWithZone:", &allocWithZone, "@@:^{_NSZone=}");
  add(metaclass, "new", &makeNew, "@@:");
  add(metaclass, "init", &keepClass, "@@:");
  add(metaclass, "dealloc", &ignoreClass, "v@:");
  add(metaclass, "retain", &keepClass, "@@:");
  add(metaclass, "release", &ignoreClass, "v@:");
  add(metaclass, "autorelease", &keepClass, "@@:");
  add(metaclass, "retainCount", &endlessRetainCount, "Q@:");
  add(metaclass, "copy", &keepClass, "@@:");
  add(metaclass, "copyWithZone:", &keepClassWithZone, "@@:^{_NSZone=}");
  add(metaclass, "mutableCopy", &keepClass, "@@:");
  add(metaclass, "mutableCopyWithZone:", &keepClassWithZone, "@@:^{_NSZone=}");
  add(metaclass, "class", &classOfClass, "#@:");
  add(metaclass, "superclass", &superclassOfClass, "#@:");
  add(metaclass, "isSubclassOfClass:", &isSubclassOfClass, "B@:#");
  add(metaclass, "conformsToProtocol:", &classConformsToProtocol, "B@:@");
  add(metaclass, "resolveInstanceMethod:", &resolveNoMethod, "B@::");
  add(metaclass, "resolveClassMethod:", &resolveNoMethod, "B@::");
  add(metaclass, "instancesRespondToSelector:", &instancesRespondToSelector, "B@::");
  add(metaclass, "instanceMethodForSelector:", &instanceMethodForSelector, "^?@::");
}

}  // namespace

void registerRootClass() {
  Class cls = objc_allocateClassPair(nullptr, "NSObject", 0);
  addInstanceMethods(cls);
  addClassMethods(cls->metaclass());
  // From here on an override of retain, release or autorelease takes the flag away again.
  cls->flags.fetch_or(ClassFlag::inlineReferences);
  objc_registerClassPair(cls);
}

}  // namespace sim::runtime
