#include "simulator/macho/Imports.h"

#if defined(__aarch64__)

#include <strings.h>
#include <unistd.h>

#include <cmath>
#include <cstdlib>
#include <cstring>
#include <iterator>
#include <new>

#include "simulator/dispatch/Dispatch.h"
#include "simulator/foundation/Arc4Random.h"
#include "simulator/macho/Entries.h"

namespace sim::macho {
namespace {

struct Symbol {
  std::string_view name;
  void* address;
};

template <class T>
Symbol symbol(std::string_view name, T* thing) {
  return {name, reinterpret_cast<void*>(thing)};
}

// The name in C, without the underscore; either the host's own, or an entry.
#define OWN(name) symbol("_" #name, &::name)
#define ENTRY(name) symbol("_" #name, &entries::name)

const Symbol substrate[] = {ENTRY(MSHookMessageEx)};

const Symbol runtime[] = {
    symbol("_objc_msgSend", &simulatorMachoMsgSend),
    OWN(objc_msgSendSuper),
    OWN(objc_msgSendSuper2),
    OWN(sel_registerName),
    OWN(sel_getName),
    ENTRY(sel_isEqual),
    OWN(objc_getClass),
    OWN(objc_lookUpClass),
    OWN(objc_getMetaClass),
    OWN(objc_getClassList),
    OWN(objc_allocateClassPair),
    OWN(objc_registerClassPair),
    OWN(objc_disposeClassPair),
    OWN(class_getName),
    OWN(class_getSuperclass),
    ENTRY(class_isMetaClass),
    OWN(class_getInstanceSize),
    ENTRY(class_respondsToSelector),
    OWN(class_createInstance),
    ENTRY(class_addMethod),
    ENTRY(class_replaceMethod),
    OWN(class_getInstanceMethod),
    OWN(class_getClassMethod),
    ENTRY(class_getMethodImplementation),
    OWN(class_copyMethodList),
    OWN(method_getName),
    ENTRY(method_getImplementation),
    OWN(method_getTypeEncoding),
    ENTRY(method_setImplementation),
    OWN(method_exchangeImplementations),
    ENTRY(class_addIvar),
    OWN(class_getInstanceVariable),
    OWN(class_copyIvarList),
    OWN(ivar_getName),
    OWN(ivar_getTypeEncoding),
    OWN(ivar_getOffset),
    OWN(object_getIvar),
    OWN(object_setIvar),
    ENTRY(class_addProperty),
    OWN(class_getProperty),
    OWN(class_copyPropertyList),
    OWN(property_getName),
    OWN(property_getAttributes),
    OWN(object_getClass),
    OWN(object_getClassName),
    ENTRY(object_isClass),
    OWN(object_setClass),
    OWN(object_dispose),
    OWN(objc_alloc),
    OWN(objc_alloc_init),
    OWN(objc_retain),
    OWN(objc_release),
    OWN(objc_autorelease),
    OWN(objc_retainAutorelease),
    OWN(objc_autoreleasePoolPush),
    OWN(objc_autoreleasePoolPop),
    OWN(objc_initWeak),
    OWN(objc_storeWeak),
    OWN(objc_loadWeak),
    OWN(objc_loadWeakRetained),
    OWN(objc_destroyWeak),
    OWN(objc_copyWeak),
    OWN(objc_moveWeak),
    OWN(objc_setAssociatedObject),
    OWN(objc_getAssociatedObject),
    OWN(objc_removeAssociatedObjects),
};

// Those with other forms in C++ have their type named.
using OfNumber = double (*)(double);
using OfNumbers = double (*)(double, double);
#define MATHEMATICS(name, Type) symbol("_" #name, static_cast<Type>(&::name))

const Symbol system[] = {
    OWN(_Block_copy),
    OWN(_Block_release),
    OWN(_NSConcreteStackBlock),
    OWN(_NSConcreteGlobalBlock),
    OWN(_NSConcreteMallocBlock),
    OWN(_dispatch_main_q),
    OWN(dispatch_after),
    ENTRY(dispatch_after_f),
    OWN(dispatch_async),
    ENTRY(dispatch_async_f),
    OWN(dispatch_get_global_queue),
    ENTRY(dispatch_once_f),
    OWN(dispatch_time),
    ENTRY(dlopen),
    ENTRY(dlsym),
    OWN(malloc),
    OWN(calloc),
    OWN(realloc),
    OWN(free),
    ENTRY(bzero),
    symbol("_memchr", static_cast<const void* (*)(const void*, int, std::size_t)>(&::memchr)),
    OWN(memcmp),
    OWN(memcpy),
    OWN(memmove),
    OWN(memset),
    ENTRY(memset_pattern16),
    symbol("_strchr", static_cast<const char* (*)(const char*, int)>(&::strchr)),
    OWN(strcmp),
    OWN(strlen),
    OWN(strncmp),
    symbol("_strrchr", static_cast<const char* (*)(const char*, int)>(&::strrchr)),
    symbol("_strstr", static_cast<const char* (*)(const char*, const char*)>(&::strstr)),
    symbol("_snprintf", &simulatorMachoSnprintf),
    ENTRY(vsnprintf),
    OWN(strtod),
    OWN(strtol),
    OWN(strtoll),
    OWN(strtoul),
    MATHEMATICS(atan2, OfNumbers),
    MATHEMATICS(ceil, OfNumber),
    MATHEMATICS(cos, OfNumber),
    MATHEMATICS(exp, OfNumber),
    MATHEMATICS(floor, OfNumber),
    MATHEMATICS(fmod, OfNumbers),
    MATHEMATICS(log, OfNumber),
    MATHEMATICS(pow, OfNumbers),
    MATHEMATICS(round, OfNumber),
    MATHEMATICS(sin, OfNumber),
    MATHEMATICS(sqrt, OfNumber),
    MATHEMATICS(tan, OfNumber),
    symbol("___sincos_stret", &entries::sincos_stret),
    symbol("___error", &entries::error),
    OWN(abort),
    OWN(access),
    OWN(arc4random_uniform),
    OWN(getenv),
    ENTRY(getprogname),
};

const Symbol cpp[] = {
    symbol("__Znwm", static_cast<void* (*)(std::size_t)>(&::operator new)),
    symbol("__Znam", static_cast<void* (*)(std::size_t)>(&::operator new[])),
    symbol("__ZdlPv", static_cast<void (*)(void*)>(&::operator delete)),
    symbol("__ZdlPvm", static_cast<void (*)(void*, std::size_t)>(&::operator delete)),
    symbol("__ZdaPv", static_cast<void (*)(void*)>(&::operator delete[])),
    symbol("__ZdaPvm", static_cast<void (*)(void*, std::size_t)>(&::operator delete[])),
};

struct ServedLibrary {
  std::string_view name;
  const Symbol* symbols;
  std::size_t count;
};

const ServedLibrary libraries[] = {
    {"CydiaSubstrate", substrate, std::size(substrate)},
    {"libobjc.A.dylib", runtime, std::size(runtime)},
    {"libSystem.B.dylib", system, std::size(system)},
    {"libc++.1.dylib", cpp, std::size(cpp)},
    {"Cephei", nullptr, 0},  // its classes are found by name
};

const ServedLibrary* find(std::string_view name) {
  for (const ServedLibrary& each : libraries)
    if (each.name == name) return &each;
  return nullptr;
}

}  // namespace

bool hasLibrary(std::string_view name) {
  return find(name) != nullptr;
}

void* importedAddress(std::string_view library, std::string_view wanted) {
  const ServedLibrary* in = find(library);
  if (in == nullptr) return nullptr;
  for (const Symbol* each = in->symbols; each != in->symbols + in->count; ++each)
    if (each->name == wanted) return each->address;
  return nullptr;
}

}  // namespace sim::macho

#else

namespace sim::macho {

bool hasLibrary(std::string_view) {
  return false;
}
void* importedAddress(std::string_view, std::string_view) {
  return nullptr;
}

}  // namespace sim::macho

#endif
