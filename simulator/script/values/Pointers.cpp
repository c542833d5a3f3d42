#include "simulator/script/values/Pointers.h"

#include <sys/uio.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string>
#include <vector>

#include "objc/runtime.h"

namespace sim {
namespace {

// The system refuses to read what is not there, where a plain access would end the program.
bool canRead(const void* from, void* to, std::size_t count) {
  const iovec source{const_cast<void*>(from), count}, target{to, count};
  return process_vm_readv(getpid(), &target, 1, &source, 1, 0) == ssize_t(count);
}

bool isClass(const void* pointer) {
  std::vector<Class> all(std::size_t(objc_getClassList(nullptr, 0)));
  objc_getClassList(all.data(), int(all.size()));
  return std::any_of(all.begin(), all.end(), [pointer](Class each) {
    return each == pointer || object_getClass(reinterpret_cast<id>(each)) == pointer;
  });
}

bool isObject(const void* pointer) {
  const void* cls = nullptr;
  return reinterpret_cast<std::uintptr_t>(pointer) % alignof(void*) == 0 &&
         canRead(pointer, &cls, sizeof cls) && isClass(cls);
}

std::optional<std::string> textAt(const char* pointer) {
  constexpr std::size_t longest = std::size_t(64) * 1024;
  std::string text;
  for (char letter = 0; canRead(pointer + text.size(), &letter, 1) && text.size() < longest;) {
    if (letter == '\0') return text;
    text += letter;
  }
  return std::nullopt;
}

bool isSelector(const char* pointer) {
  const auto name = textAt(pointer);
  return name && reinterpret_cast<const char*>(sel_registerName(name->c_str())) == pointer;
}

}  // namespace

bool hasPlausiblePointers(const TypeEncoding& type, const std::byte* bytes) {
  for (std::size_t index = 0; index < type.members.size(); ++index)
    if (!hasPlausiblePointers(type.members[index], bytes + type.offsetOf(index))) return false;
  if (!type.isObject() && type.kind != '*' && type.kind != ':') return true;
  const char* pointer = nullptr;
  std::memcpy(&pointer, bytes, sizeof pointer);
  if (pointer == nullptr) return true;
  if (type.isObject()) return isObject(pointer);
  return type.kind == '*' ? textAt(pointer).has_value() : isSelector(pointer);
}

}  // namespace sim
