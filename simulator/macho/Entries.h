// What slices import and the host's own code cannot be called as, because the platform passes
// something in another way: results of BOOL, which its compilers read from the whole register;
// variable numbers of arguments, which it passes on the stack alone; functions, which arm64e signs.
#pragma once

#if defined(__aarch64__)

#include <cstdarg>
#include <cstddef>

#include "objc/runtime.h"
#include "simulator/dispatch/Dispatch.h"

extern "C" {
// In assembly; never called as declared.
[[gnu::visibility("hidden")]] void simulatorMachoMsgSend();
[[gnu::visibility("hidden")]] void simulatorMachoSnprintf();
}

namespace sim::macho::entries {

using Bool = int;  // 0 or 1

Bool sel_isEqual(SEL left, SEL right);
Bool class_isMetaClass(Class cls);
Bool class_respondsToSelector(Class cls, SEL selector);
Bool object_isClass(id object);
Bool class_addIvar(Class cls, const char* name, std::size_t size, std::uint8_t alignment,
                   const char* types);
Bool class_addProperty(Class cls, const char* name, const objc_property_attribute_t* attributes,
                       unsigned int count);

Bool class_addMethod(Class cls, SEL selector, IMP implementation, const char* types);
IMP class_replaceMethod(Class cls, SEL selector, IMP implementation, const char* types);
IMP class_getMethodImplementation(Class cls, SEL selector);
IMP method_getImplementation(Method method);
IMP method_setImplementation(Method method, IMP implementation);
void MSHookMessageEx(Class cls, SEL selector, IMP replacement, IMP* previous);

void dispatch_once_f(dispatch_once_t* predicate, void* context, dispatch_function_t function);
void dispatch_async_f(dispatch_queue_t queue, void* context, dispatch_function_t work);
void dispatch_after_f(dispatch_time_t when, dispatch_queue_t queue, void* context,
                      dispatch_function_t work);

// Of what the host has loaded; nothing else has names here.
void* dlsym(void* handle, const char* name);
void* dlopen(const char* path, int mode);

int vsnprintf(char* text, std::size_t size, const char* format, char* arguments);
void bzero(void* place, std::size_t size);
void memset_pattern16(void* place, const void* pattern, std::size_t size);
int* error();
const char* getprogname();

struct SineAndCosine {
  double sine, cosine;
};
SineAndCosine sincos_stret(double angle);

}  // namespace sim::macho::entries

#endif
