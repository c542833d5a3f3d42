#include "simulator/macho/Entries.h"

#if defined(__aarch64__)

#include <dlfcn.h>
#include <link.h>

#include <array>
#include <cerrno>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <string>

#include "simulator/runtime/Fatal.h"
#include "simulator/runtime/Signing.h"
#include "simulator/runtime/Variadics.h"

namespace {

using sim::runtime::authenticatedFunction;
using sim::runtime::signedFunction;

// As this program calls it.
template <class Function>
Function taken(Function function, const char* what) {
  return reinterpret_cast<Function>(authenticatedFunction(reinterpret_cast<void*>(function), what));
}

template <class Function>
Function given(Function function) {
  return reinterpret_cast<Function>(signedFunction(reinterpret_cast<void*>(function)));
}

IMP takenMethod(Class cls, SEL selector, IMP implementation) {
  const std::string what =
      std::string("the implementation of ") + class_getName(cls) + ' ' + sel_getName(selector);
  return taken(implementation, what.c_str());
}

// All arguments behind the fixed ones lie in eight bytes each from there on.
struct StackedArguments {
  const void* stack;
  const void* noRegisters[2];
  int generalOffset, vectorOffset;  // 0: none is left in registers
};
static_assert(sizeof(StackedArguments) == sizeof(std::va_list));

// Whether an address of this process can be called; variables are handed out as they are.
int findCode(dl_phdr_info* image, std::size_t, void* context) {
  const auto wanted = reinterpret_cast<std::uintptr_t>(*static_cast<void**>(context));
  for (int index = 0; index < image->dlpi_phnum; ++index) {
    const ElfW(Phdr)& segment = image->dlpi_phdr[index];
    const std::uintptr_t start = image->dlpi_addr + segment.p_vaddr;
    if (segment.p_type == PT_LOAD && (segment.p_flags & PF_X) != 0 && wanted >= start &&
        wanted - start < segment.p_memsz)
      return 1;
  }
  return 0;
}

bool isCode(void* address) {
  return dl_iterate_phdr(findCode, &address) != 0;
}

}  // namespace

// One entry for each function with dots that was asked for, in assembly.
extern "C" {
[[gnu::visibility("hidden")]] extern const char simulatorMachoFunctionEntries[];
constinit std::array<sim::runtime::VariadicFunctionForm, 8> simulatorMachoFunctionForms{};
[[gnu::visibility("hidden")]] IMP simulatorMachoVariadicForm(id receiver, SEL selector);
}

IMP simulatorMachoVariadicForm(id receiver, SEL selector) {
  const Class cls = object_getClass(receiver);
  return sim::runtime::variadicMethodForm(class_getMethodImplementation(cls, selector));
}

namespace sim::macho::entries {
namespace {

void* entryWithDots(sim::runtime::VariadicFunctionForm form) {
  constexpr std::size_t entrySize = 8;
  std::size_t index = 0;
  for (auto& each : simulatorMachoFunctionForms) {
    if (each == nullptr) each = form;
    if (each == form) return const_cast<char*>(simulatorMachoFunctionEntries) + index * entrySize;
    ++index;
  }
  sim::runtime::fatal("dlsym: too many functions with a variable number of arguments");
}

}  // namespace

Bool sel_isEqual(SEL left, SEL right) {
  return ::sel_isEqual(left, right) ? 1 : 0;
}
Bool class_isMetaClass(Class cls) {
  return ::class_isMetaClass(cls) ? 1 : 0;
}
Bool class_respondsToSelector(Class cls, SEL selector) {
  return ::class_respondsToSelector(cls, selector) ? 1 : 0;
}
Bool object_isClass(id object) {
  return ::object_isClass(object) ? 1 : 0;
}
Bool class_addIvar(Class cls, const char* name, std::size_t size, std::uint8_t alignment,
                   const char* types) {
  return ::class_addIvar(cls, name, size, alignment, types) ? 1 : 0;
}
Bool class_addProperty(Class cls, const char* name, const objc_property_attribute_t* attributes,
                       unsigned int count) {
  return ::class_addProperty(cls, name, attributes, count) ? 1 : 0;
}

Bool class_addMethod(Class cls, SEL selector, IMP implementation, const char* types) {
  return ::class_addMethod(cls, selector, takenMethod(cls, selector, implementation), types) ? 1
                                                                                             : 0;
}
IMP class_replaceMethod(Class cls, SEL selector, IMP implementation, const char* types) {
  return given(
      ::class_replaceMethod(cls, selector, takenMethod(cls, selector, implementation), types));
}
IMP class_getMethodImplementation(Class cls, SEL selector) {
  return given(::class_getMethodImplementation(cls, selector));
}
IMP method_getImplementation(Method method) {
  return given(::method_getImplementation(method));
}
IMP method_setImplementation(Method method, IMP implementation) {
  return given(::method_setImplementation(method, taken(implementation, "an implementation")));
}

// The extension's slot is filled when the hook is live already, and only if there was something to
// replace.
void MSHookMessageEx(Class cls, SEL selector, IMP replacement, IMP* previous) {
  IMP replaced = nullptr;
  ::MSHookMessageEx(cls, selector, takenMethod(cls, selector, replacement), &replaced);
  if (previous != nullptr && replaced != nullptr) *previous = given(replaced);
}

void dispatch_once_f(dispatch_once_t* predicate, void* context, dispatch_function_t function) {
  ::dispatch_once_f(predicate, context, taken(function, "the function of dispatch_once_f"));
}
void dispatch_async_f(dispatch_queue_t queue, void* context, dispatch_function_t work) {
  ::dispatch_async_f(queue, context, taken(work, "the function of dispatch_async_f"));
}
void dispatch_after_f(dispatch_time_t when, dispatch_queue_t queue, void* context,
                      dispatch_function_t work) {
  ::dispatch_after_f(when, queue, context, taken(work, "the function of dispatch_after_f"));
}

void* dlsym(void* handle, const char* name) {
  constexpr std::intptr_t everywhere = -2;  // RTLD_DEFAULT of the platform
  if (reinterpret_cast<std::intptr_t>(handle) != everywhere) return nullptr;
  void* found = ::dlsym(RTLD_DEFAULT, name);
  if (found == nullptr || !isCode(found)) return found;
  if (const auto form = sim::runtime::variadicFunctionForm(found)) found = entryWithDots(form);
  return signedFunction(found);
}

// Everything that the host has is loaded already, and dlsym finds it.
void* dlopen(const char*, int) {
  return nullptr;
}

int vsnprintf(char* text, std::size_t size, const char* format, char* arguments) {
  const StackedArguments stacked{arguments, {nullptr, nullptr}, 0, 0};
  std::va_list list;
  std::memcpy(static_cast<void*>(&list), &stacked, sizeof list);
  return ::vsnprintf(text, size, format, list);
}

void bzero(void* place, std::size_t size) {
  std::memset(place, 0, size);
}

void memset_pattern16(void* place, const void* pattern, std::size_t size) {
  auto* bytes = static_cast<char*>(place);
  for (std::size_t at = 0; at < size; ++at) bytes[at] = static_cast<const char*>(pattern)[at % 16];
}

int* error() {
  return &errno;
}

const char* getprogname() {
  return program_invocation_short_name;
}

SineAndCosine sincos_stret(double angle) {
  return {std::sin(angle), std::cos(angle)};
}

}  // namespace sim::macho::entries

#endif
