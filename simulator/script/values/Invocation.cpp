#include "simulator/script/values/Invocation.h"

#include <stdexcept>
#include <string>
#include <utility>

#include "objc/Message.h"
#include "simulator/foundation/invocation/CallTypes.h"

namespace sim {
namespace {

// `arguments` includes self and _cmd for a message.
Value perform(void (*entry)(), const TypeEncoding& result, std::vector<Value>& arguments) {
  CallTypes types;
  std::vector<ffi_type*> argumentTypes;
  std::vector<void*> places;
  for (Value& argument : arguments) {
    argumentTypes.push_back(types.of(argument.type()));
    places.push_back(argument.bytes());
  }
  ffi_cif call;
  if (ffi_prep_cif(&call, FFI_DEFAULT_ABI, unsigned(places.size()), types.of(result),
                   argumentTypes.data()) != FFI_OK)
    throw std::invalid_argument("the call cannot be prepared");
  Value answer(result);  // its bytes are more than one register, which libffi may fill whole
  // What an extension throws is nobody's to catch: it ends the process where it is thrown.
  [&]() noexcept { ffi_call(&call, entry, answer.bytes(), places.data()); }();
  // It may lie inside an argument, which does not outlive the call.
  if (result.kind == '*' && answer.as<const char*>() != nullptr)
    return Value::ofCString(answer.as<const char*>());
  return answer;
}

template <class Pointer>
Value pointerValue(const char* type, Pointer pointer) {
  Value value(parseType(type));
  std::memcpy(value.bytes(), &pointer, sizeof pointer);
  return value;
}

void requireCount(const Signature& signature, const std::vector<Value>& arguments) {
  if (signature.arguments.size() != arguments.size())
    throw std::invalid_argument("expected " + std::to_string(signature.arguments.size()) +
                                " arguments, found " + std::to_string(arguments.size()));
}

// "newTimer" and "new" are of the family "new", "newsstand" is not.
bool isOfFamily(std::string_view selector, std::string_view family) {
  selector.remove_prefix(std::min(selector.find_first_not_of('_'), selector.size()));
  if (!selector.starts_with(family)) return false;
  const char next = selector.size() == family.size() ? ':' : selector[family.size()];
  return next < 'a' || next > 'z';
}

bool givesOwnership(std::string_view selector) {
  for (const char* family : {"alloc", "new", "copy", "mutableCopy", "init"}) {
    if (isOfFamily(selector, family)) return true;
  }
  return false;
}

void (*messageEntry(const TypeEncoding& result))() {
#if defined(__x86_64__)
  // Only x86-64 has an entry point of its own for results in memory.
  if (result.kind == '{' && result.size() > 16) return &objc_msgSend_stret;
#else
  static_cast<void>(result);
#endif
  return &objc_msgSend;
}

}  // namespace

std::optional<Signature> methodSignature(objc::Object receiver, SEL selector) {
  const Method method = class_getInstanceMethod(object_getClass(receiver.get()), selector);
  if (method == nullptr) return std::nullopt;
  const char* types = method_getTypeEncoding(method);
  if (types == nullptr) throw std::invalid_argument("the method has no type encoding");
  return parseMethodTypes(types);
}

Value sendMessage(objc::Object receiver, SEL selector, const Signature& signature,
                  std::vector<Value> arguments) {
  requireCount(signature, arguments);
  const std::string_view name = sel_getName(selector);
  // init consumes its receiver, which the caller goes on to hold.
  if (isOfFamily(name, "init")) objc_retain(receiver.get());
  arguments.insert(arguments.begin(),
                   {pointerValue("@", receiver.get()), pointerValue(":", selector)});
  Value answer = perform(messageEntry(signature.result), signature.result, arguments);
  if (answer.type().kind == '@' && givesOwnership(name))
    return Value::ofOwned(objc::adopt(answer.object()));
  answer.keepObject();
  return answer;
}

Value callFunction(void* function, const Signature& signature, std::vector<Value> arguments) {
  requireCount(signature, arguments);
  Value answer = perform(reinterpret_cast<void (*)()>(function), signature.result, arguments);
  answer.keepObject();
  return answer;
}

std::optional<Value> sendIfKnown(objc::Object receiver, const std::string& selector) {
  const SEL name = sel_registerName(selector.c_str());
  const auto signature = methodSignature(receiver, name);
  if (!signature || !signature->arguments.empty()) return std::nullopt;
  return sendMessage(receiver, name, *signature, {});
}

}  // namespace sim
