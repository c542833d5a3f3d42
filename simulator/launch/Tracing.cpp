#include "simulator/launch/Tracing.h"

#include <cstring>
#include <deque>
#include <set>
#include <string_view>

#include "simulator/foundation/invocation/CallTypes.h"
#include "simulator/foundation/invocation/Value.h"
#include "simulator/launch/Host.h"
#include "simulator/machine/Phone.h"

namespace sim {
namespace {

// One traced method, with all that libffi keeps pointers into.
struct Trace {
  SEL selector;
  Signature signature;
  IMP original = nullptr;
  CallTypes types;
  std::vector<ffi_type*> argumentTypes;
  ffi_cif call{};
};

// "-[Class selector]"; a class method is named with a plus.
std::string methodName(const std::string& cls, const std::string& selector) {
  const bool ofClass = selector.starts_with('+');
  return (ofClass ? "+[" : "-[") + cls + ' ' + selector.substr(ofClass ? 1 : 0) + ']';
}

// "call -[Class part:argument part:argument]", with the receiver's own class.
std::string callText(const Trace& trace, void** arguments) {
  const id receiver = *static_cast<id*>(arguments[0]);
  std::string text = object_isClass(receiver) ? "call +[" : "call -[";
  text += std::string(object_getClassName(receiver)) + ' ';
  std::string_view rest = sel_getName(trace.selector);
  std::size_t index = 2;  // behind self and _cmd
  for (const TypeEncoding& type : trace.signature.arguments) {
    const std::size_t colon = rest.find(':');
    Value value(type);
    std::memcpy(value.bytes(), arguments[index], type.size());
    if (index++ > 2) text += ' ';
    text += std::string(rest.substr(0, colon + 1)) + notation(value);
    rest.remove_prefix(colon + 1);
  }
  return text + std::string(rest) + ']';
}

void journalAndCall(ffi_cif* call, void* result, void** arguments, void* context) {
  const Trace& trace = *static_cast<Trace*>(context);
  Phone::current().journal.record(callText(trace, arguments));
  ffi_call(call, trace.original, result, arguments);
}

void prepare(Trace& trace) {
  trace.argumentTypes = {&ffi_type_pointer, &ffi_type_pointer};
  for (const TypeEncoding& type : trace.signature.arguments)
    trace.argumentTypes.push_back(trace.types.of(type));
  if (ffi_prep_cif(&trace.call, FFI_DEFAULT_ABI, unsigned(trace.argumentTypes.size()),
                   trace.types.of(trace.signature.result), trace.argumentTypes.data()) != FFI_OK)
    throw HostError(std::string(sel_getName(trace.selector)) + " cannot be traced");
}

IMP makeEntry(Trace& trace) {
  void* code = nullptr;
  auto* closure = static_cast<ffi_closure*>(ffi_closure_alloc(sizeof(ffi_closure), &code));
  if (closure == nullptr ||
      ffi_prep_closure_loc(closure, &trace.call, journalAndCall, &trace, code) != FFI_OK)
    throw HostError(std::string(sel_getName(trace.selector)) + " cannot be traced");
  return reinterpret_cast<IMP>(code);
}

// False when there is no such method.
bool traceMethod(const std::string& cls, const std::string& selector) {
  static std::deque<Trace> traces;  // the host calls into them as long as it lives
  const bool ofClass = selector.starts_with('+');
  const SEL name = sel_registerName(selector.c_str() + (ofClass ? 1 : 0));
  const Class target = ofClass ? objc_getMetaClass(cls.c_str()) : objc_getClass(cls.c_str());
  const Method method = class_getInstanceMethod(target, name);
  if (method == nullptr) return false;
  Trace& trace = traces.emplace_back();
  trace.selector = name;
  trace.signature = parseMethodTypes(method_getTypeEncoding(method));
  prepare(trace);
  trace.original = method_getImplementation(method);
  class_replaceMethod(target, name, makeEntry(trace), method_getTypeEncoding(method));
  return true;
}

struct TracedSoFar {
  std::set<std::pair<std::string, std::string>> methods;
};

auto& tracedMethods() {
  return Phone::current().state<TracedSoFar>().methods;
}

}  // namespace

void traceNewClasses(const TracedMethods& traced) {
  for (const auto& each : traced) {
    if (!tracedMethods().contains(each) && traceMethod(each.first, each.second))
      tracedMethods().insert(each);
  }
}

void requireTraced(const TracedMethods& traced) {
  for (const auto& each : traced) {
    if (!tracedMethods().contains(each))
      throw HostError("there is no method " + methodName(each.first, each.second) + " to trace");
  }
}

}  // namespace sim
