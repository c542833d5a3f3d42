#include "Signing.h"

#include <string>

#include "Slice.h"

namespace {

constexpr std::uint64_t isaDiscriminator = 0x6AE1;

std::uint64_t strip(std::uint64_t pointer) {
  asm("xpaci %0" : "+r"(pointer));
  return pointer;
}

// A failed authentication gives a poisoned address and not the stripped one.
void* require(std::uint64_t authenticated, std::uint64_t pointer, const char* what) {
  if (authenticated != strip(pointer)) fail(std::string(what) + " is not signed as it must be");
  return reinterpret_cast<void*>(authenticated);
}

std::uint64_t bits(void* pointer) {
  return reinterpret_cast<std::uint64_t>(pointer);
}
std::uint64_t bits(void* const* slot) {
  return reinterpret_cast<std::uint64_t>(slot);
}

std::uint64_t isaModifier(void* const* slot) {
  return (bits(slot) & 0xFFFFFFFFFFFF) | isaDiscriminator << 48;
}

}  // namespace

void* Signing::signFunction(void* plain) const {
  std::uint64_t pointer = bits(plain);
  if (on_) asm("paciza %0" : "+r"(pointer));
  return reinterpret_cast<void*>(pointer);
}

void* Signing::checkFunction(void* function, const char* what) const {
  if (!on_) return function;
  std::uint64_t pointer = bits(function);
  asm("autiza %0" : "+r"(pointer));
  return require(pointer, bits(function), what);
}

void* Signing::checkStoredFunction(void* const* slot, const char* what) const {
  if (!on_) return *slot;
  std::uint64_t pointer = bits(*slot);
  asm("autia %0, %1" : "+r"(pointer) : "r"(bits(slot)));
  return require(pointer, bits(*slot), what);
}

void Signing::storeFunction(void** slot, void* plain) const {
  std::uint64_t pointer = bits(plain);
  if (on_) asm("pacia %0, %1" : "+r"(pointer) : "r"(bits(slot)));
  *slot = reinterpret_cast<void*>(pointer);
}

void* Signing::checkIsa(void* const* slot, const char* what) const {
  if (!on_) return *slot;
  std::uint64_t pointer = bits(*slot);
  asm("autda %0, %1" : "+r"(pointer) : "r"(isaModifier(slot)));
  return require(pointer, bits(*slot), what);
}

void Signing::storeIsa(void** slot, void* plain) const {
  std::uint64_t pointer = bits(plain);
  if (on_) asm("pacda %0, %1" : "+r"(pointer) : "r"(isaModifier(slot)));
  *slot = reinterpret_cast<void*>(pointer);
}
