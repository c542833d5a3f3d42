#include "simulator/runtime/Variadics.h"

#include <unordered_map>

#include "simulator/runtime/AssemblyOffsets.h"

constinit std::uint64_t simulatorRuntimeVariadicSelectors = 0;

namespace sim::runtime {
namespace {

struct Forms {
  std::unordered_map<const void*, IMP> methods;
  std::unordered_map<const void*, VariadicFunctionForm> functions;
};

// Filled while the host's classes are registered, before any extension runs.
Forms& forms() {
  static auto* instance = new Forms;
  return *instance;
}

template <class Form>
Form found(const std::unordered_map<const void*, Form>& among, const void* function) {
  const auto at = among.find(function);
  return at != among.end() ? at->second : nullptr;
}

}  // namespace

void addVariadicMethod(SEL selector, IMP function, IMP form) {
  const std::uint64_t place = reinterpret_cast<std::uint64_t>(selector) / BUCKET_SIZE;
  simulatorRuntimeVariadicSelectors |= std::uint64_t{1} << place % 64;
  forms().methods[reinterpret_cast<const void*>(function)] = form;
}

void addVariadicFunction(void* function, VariadicFunctionForm form) {
  forms().functions[function] = form;
}

IMP variadicMethodForm(IMP function) {
  return found(forms().methods, reinterpret_cast<const void*>(function));
}

VariadicFunctionForm variadicFunctionForm(const void* function) {
  return found(forms().functions, function);
}

}  // namespace sim::runtime
