#include <cstring>
#include <mutex>
#include <new>
#include <string_view>
#include <unordered_map>

#include "objc/runtime.h"
#include "simulator/runtime/AssemblyOffsets.h"

namespace {

// A selector is its interned name, as on the platform. Aligned to a bucket, so that the address
// itself is the hash: the assembly masks it and has the bucket's offset.
SEL intern(std::string_view name) {
  void* memory = ::operator new (name.size() + 1, std::align_val_t{BUCKET_SIZE});
  std::memcpy(memory, name.data(), name.size());
  static_cast<char*>(memory)[name.size()] = '\0';
  return static_cast<SEL>(memory);
}

struct SelectorTable {
  // A forked host adds its extension's selectors. Were the table to grow there, every entry would
  // be written to, and with it all the memory copied that the host shares.
  SelectorTable() { byName.reserve(4096); }  // the phone has a thousand

  std::mutex lock;
  std::unordered_map<std::string_view, SEL> byName;  // views into the selectors
};

SelectorTable& selectorTable() {
  static auto* instance = new SelectorTable;  // never destroyed: messages are sent until the end
  return *instance;
}

}  // namespace

SEL sel_registerName(const char* name) {
  if (name == nullptr) return nullptr;
  SelectorTable& selectors = selectorTable();
  const std::lock_guard guard(selectors.lock);
  if (const auto found = selectors.byName.find(name); found != selectors.byName.end())
    return found->second;
  const SEL selector = intern(name);
  selectors.byName.emplace(sel_getName(selector), selector);
  return selector;
}

const char* sel_getName(SEL selector) {
  return selector == nullptr ? "<null selector>" : reinterpret_cast<const char*>(selector);
}

bool sel_isEqual(SEL left, SEL right) {
  return left == right;
}
