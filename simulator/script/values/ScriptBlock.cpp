#include "simulator/script/values/ScriptBlock.h"

#include <cstring>
#include <deque>
#include <stdexcept>

#include "objc/Block.h"
#include "simulator/foundation/invocation/CallTypes.h"
#include "simulator/foundation/invocation/Value.h"
#include "simulator/machine/Phone.h"

namespace sim {
namespace {

// A block of the kind that nobody counts, with all that libffi keeps pointers into.
struct ScriptBlock {
  objc::BlockHeader header{};
  objc::PlainBlockDescriptor descriptor{};
  std::string name;
  Signature signature;
  CallTypes types;
  std::vector<ffi_type*> argumentTypes;
  ffi_cif call{};
};

void journalCall(ffi_cif*, void* result, void** arguments, void* context) {
  const ScriptBlock& block = *static_cast<ScriptBlock*>(context);
  std::string text = "block " + block.name;
  std::size_t index = 1;  // behind the block itself
  for (const TypeEncoding& type : block.signature.arguments) {
    Value value(type);
    std::memcpy(value.bytes(), arguments[index++], type.size());
    text += ' ' + notation(value);
  }
  Phone::current().journal.record(text);
  // libffi widens small results to a register.
  const std::size_t size = std::max(block.signature.result.size(), sizeof(ffi_arg));
  if (block.signature.result.kind != 'v') std::memset(result, 0, size);
}

void* makeEntry(ScriptBlock& block) {
  block.argumentTypes = {&ffi_type_pointer};
  for (const TypeEncoding& type : block.signature.arguments)
    block.argumentTypes.push_back(block.types.of(type));
  void* code = nullptr;
  auto* closure = static_cast<ffi_closure*>(ffi_closure_alloc(sizeof(ffi_closure), &code));
  if (closure == nullptr ||
      ffi_prep_cif(&block.call, FFI_DEFAULT_ABI, unsigned(block.argumentTypes.size()),
                   block.types.of(block.signature.result), block.argumentTypes.data()) != FFI_OK ||
      ffi_prep_closure_loc(closure, &block.call, journalCall, &block, code) != FFI_OK)
    throw std::invalid_argument("the block " + block.name + " cannot be made");
  return code;
}

}  // namespace

objc::Object scriptBlock(const std::string& name, const Signature& signature) {
  static std::deque<ScriptBlock> blocks;
  constexpr std::int32_t isGlobal = 1 << 28;
  ScriptBlock& block = blocks.emplace_back();
  block.name = name;
  block.signature = signature;
  block.descriptor.size = sizeof(objc::BlockHeader);
  objc::storeBlockClass(&block.header.isa, _NSConcreteGlobalBlock);
  block.header.flags = isGlobal;
  block.header.descriptor = &block.descriptor;
  objc::storeBlockFunction(&block.header.invoke, makeEntry(block));
  return objc::Object(reinterpret_cast<id>(&block.header));
}

}  // namespace sim
