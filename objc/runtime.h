// The part of the Objective-C runtime's public C API that this project calls,
// declared with the platform's own names and signatures (objc/runtime.h,
// objc/message.h and objc/objc-auto.h of the platform; Block.h of its block runtime).
//
// On a phone these come from libobjc and libSystem; on Linux from
// simulator/runtime. Everything in C++ that is not this file or the bridge
// around it speaks through objc/.
#pragma once

#include <cstddef>
#include <cstdint>

extern "C" {

struct objc_class;
struct objc_selector;
struct objc_method;
struct objc_ivar;
struct objc_property;

using Class = objc_class*;
struct objc_object {
  Class isa;  // signed on arm64e: read it with object_getClass only
};
using id = objc_object*;
using SEL = objc_selector*;
using Method = objc_method*;
using Ivar = objc_ivar*;
using objc_property_t = objc_property*;
using Protocol = objc_object;  // an object, as its name in Objective-C says
using IMP = void (*)();        // cast to the exact prototype before a call

// What class_addProperty takes: {"T", "q"}, {"N", ""}, {"&", ""}, {"G", "getter"} ...
struct objc_property_attribute_t {
  const char* name;
  const char* value;
};

struct objc_super {
  id receiver;
  Class super_class;  // objc_msgSendSuper: the class to search first; ...Super2: its subclass
};

using objc_AssociationPolicy = std::uintptr_t;
enum : objc_AssociationPolicy {
  OBJC_ASSOCIATION_ASSIGN = 0,
  OBJC_ASSOCIATION_RETAIN_NONATOMIC = 1,
  OBJC_ASSOCIATION_COPY_NONATOMIC = 3,
  OBJC_ASSOCIATION_RETAIN = 01401,
  OBJC_ASSOCIATION_COPY = 01403,
};

// Messages. Never called as declared: cast to the prototype of the method first.
void objc_msgSend();
void objc_msgSendSuper();
void objc_msgSendSuper2();
#if defined(__x86_64__)
// Only x86-64 returns large structures through entry points of their own.
void objc_msgSend_stret();
void objc_msgSendSuper_stret();
void objc_msgSendSuper2_stret();
#endif

// Selectors.
SEL sel_registerName(const char* name);
const char* sel_getName(SEL selector);
bool sel_isEqual(SEL left, SEL right);

// Class lookup. nil when there is no class of that name.
Class objc_getClass(const char* name);
Class objc_lookUpClass(const char* name);
Class objc_getMetaClass(const char* name);
// Fills up to `count` entries and returns how many classes there are.
int objc_getClassList(Class* buffer, int count);

// Classes at run time. objc_allocateClassPair gives nil when the name is taken.
Class objc_allocateClassPair(Class superclass, const char* name, std::size_t extraBytes);
void objc_registerClassPair(Class cls);
void objc_disposeClassPair(Class cls);

const char* class_getName(Class cls);
Class class_getSuperclass(Class cls);
bool class_isMetaClass(Class cls);
std::size_t class_getInstanceSize(Class cls);
bool class_respondsToSelector(Class cls, SEL selector);
id class_createInstance(Class cls, std::size_t extraBytes);

// NO when the class itself (not a superclass) has the method already.
bool class_addMethod(Class cls, SEL selector, IMP implementation, const char* types);
// The implementation replaced, or nil. `types` counts only when the method is new.
IMP class_replaceMethod(Class cls, SEL selector, IMP implementation, const char* types);
// These ask the class's resolveInstanceMethod: or resolveClassMethod: before they say no, and so
// does class_respondsToSelector.
Method class_getInstanceMethod(Class cls, SEL selector);
Method class_getClassMethod(Class cls, SEL selector);
// Never nil for a class: what nobody implements is forwarded when it is called.
IMP class_getMethodImplementation(Class cls, SEL selector);
#if defined(__x86_64__)
// The same for methods that return a large structure; differs in what it gives for unknown ones.
IMP class_getMethodImplementation_stret(Class cls, SEL selector);
#endif
Method* class_copyMethodList(Class cls, unsigned int* count);  // newest first; free() it

SEL method_getName(Method method);
IMP method_getImplementation(Method method);
const char* method_getTypeEncoding(Method method);
unsigned int method_getNumberOfArguments(Method method);  // self and _cmd count
char* method_copyReturnType(Method method);               // free() it
// nil when there is no such argument; 0 is self. free() it.
char* method_copyArgumentType(Method method, unsigned int index);
IMP method_setImplementation(Method method, IMP implementation);  // returns the one replaced
void method_exchangeImplementations(Method one, Method other);

// Only between objc_allocateClassPair and objc_registerClassPair. `alignment` is log2 of bytes.
bool class_addIvar(Class cls, const char* name, std::size_t size, std::uint8_t alignment,
                   const char* types);
Ivar class_getInstanceVariable(Class cls, const char* name);
Ivar* class_copyIvarList(Class cls, unsigned int* count);  // free() it
const char* ivar_getName(Ivar ivar);
const char* ivar_getTypeEncoding(Ivar ivar);
std::ptrdiff_t ivar_getOffset(Ivar ivar);
id object_getIvar(id object, Ivar ivar);
void object_setIvar(id object, Ivar ivar, id value);

// A method implementation that calls the block with the receiver and the arguments, but without
// the selector. Copies the block; imp_removeBlock releases it.
IMP imp_implementationWithBlock(id block);
id imp_getBlock(IMP implementation);       // +0; nil for other implementations
bool imp_removeBlock(IMP implementation);  // NO for others; the implementation is gone afterwards

// NO when the class or a superclass has a property of that name. Attributes without value are left
// out; an empty one is a value.
bool class_addProperty(Class cls, const char* name, const objc_property_attribute_t* attributes,
                       unsigned int count);
objc_property_t class_getProperty(Class cls, const char* name);
objc_property_t* class_copyPropertyList(Class cls, unsigned int* count);  // newest first; free() it
const char* property_getName(objc_property_t property);
const char* property_getAttributes(objc_property_t property);

// Protocols: names that classes adopt. nil when there is no protocol of that name.
Protocol* objc_getProtocol(const char* name);
Protocol* objc_allocateProtocol(const char* name);  // nil when the name is taken
void objc_registerProtocol(Protocol* protocol);
// Only between objc_allocateProtocol and objc_registerProtocol; `addition` is registered.
void protocol_addProtocol(Protocol* protocol, Protocol* addition);
const char* protocol_getName(Protocol* protocol);
bool protocol_conformsToProtocol(Protocol* protocol, Protocol* other);
bool protocol_isEqual(Protocol* protocol, Protocol* other);
bool class_addProtocol(Class cls, Protocol* protocol);  // NO when the class conforms already
// Of the class alone; the method conformsToProtocol: asks the superclasses too.
bool class_conformsToProtocol(Class cls, Protocol* protocol);
Protocol** class_copyProtocolList(Class cls, unsigned int* count);  // newest first; free() it

// Objects.
Class object_getClass(id object);
const char* object_getClassName(id object);
bool object_isClass(id object);
Class object_setClass(id object, Class cls);
id object_dispose(id object);  // frees without dealloc; returns nil

// Reference counting. All take nil.
id objc_alloc(Class cls);
id objc_alloc_init(Class cls);
id objc_retain(id object);
void objc_release(id object);
id objc_autorelease(id object);
id objc_retainAutorelease(id object);
void* objc_autoreleasePoolPush();
void objc_autoreleasePoolPop(void* pool);

// Zeroing weak references.
id objc_initWeak(id* location, id object);
id objc_storeWeak(id* location, id object);
id objc_loadWeak(id* location);          // +0, autoreleased
id objc_loadWeakRetained(id* location);  // +1
void objc_destroyWeak(id* location);     // leaves the bits there as they are
void objc_copyWeak(id* to, id* from);
void objc_moveWeak(id* to, id* from);

// Associations. Setting nil removes one; a value for nil as the object ends the program.
void objc_setAssociatedObject(id object, const void* key, id value, objc_AssociationPolicy policy);
id objc_getAssociatedObject(id object, const void* key);
void objc_removeAssociatedObjects(id object);

// Blocks (their layout: objc/Block.h).
void* _Block_copy(const void* block);
void _Block_release(const void* block);
extern void* _NSConcreteStackBlock[32];
extern void* _NSConcreteGlobalBlock[32];
extern void* _NSConcreteMallocBlock[32];

// The injection platform's hook function. Replaces cls's implementation of selector and stores
// the previous one (the inherited one if cls had none of its own) in *previous. Does nothing and
// leaves *previous alone when cls is nil or knows no such method.
void MSHookMessageEx(Class cls, SEL selector, IMP replacement, IMP* previous);

}  // extern "C"
