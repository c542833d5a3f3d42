#include "simulator/runtime/Signing.h"

#include "simulator/runtime/ClassRegistry.h"
#include "simulator/runtime/Fatal.h"
#include "simulator/runtime/LiveObjects.h"

#if defined(__aarch64__)
#include <sys/auxv.h>

extern "C" {
// In assembly: only processors that can have these instructions. Each takes what the two
// instructions of that name take; the last two remove a signature.
[[gnu::visibility("hidden")]] std::uint64_t simulatorRuntimePacia(std::uint64_t, std::uint64_t);
[[gnu::visibility("hidden")]] std::uint64_t simulatorRuntimePacda(std::uint64_t, std::uint64_t);
[[gnu::visibility("hidden")]] std::uint64_t simulatorRuntimeXpaci(std::uint64_t);
[[gnu::visibility("hidden")]] std::uint64_t simulatorRuntimeXpacd(std::uint64_t);

constinit bool simulatorRuntimeSigns = false;
}

namespace sim::runtime {
namespace {

std::uint64_t bits(const void* pointer) {
  return reinterpret_cast<std::uint64_t>(pointer);
}
void* pointerOf(std::uint64_t bits) {
  return reinterpret_cast<void*>(bits);
}

std::uint64_t isaModifier(const void* slot) {
  constexpr std::uint64_t discriminator = 0x6AE1;
  return (bits(slot) & 0xFFFFFFFFFFFF) | discriminator << 48;
}

// An address as the platform shows it to nobody: signatures differ from run to run.
void* plainFunction(std::uint64_t pointer, std::uint64_t modifier, const char* what) {
  const std::uint64_t plain = simulatorRuntimeXpaci(pointer);
  // Some processors end the program where a signature is wrong, others give a pointer that leads
  // nowhere; signing once more tells on all of them.
  if (simulatorRuntimePacia(plain, modifier) != pointer)
    fatal("%s is not signed as it must be", what);
  return pointerOf(plain);
}

}  // namespace

bool processorSigns() {
  return (getauxval(AT_HWCAP) & HWCAP_PACA) != 0;
}

void beginSigning() {
  ensureBootstrapped();
  if (signs()) return;
  if (!liveInstanceCounts().empty() || liveBlockCount() != 0)
    fatal("objects were made before it was known that they are to be signed");
  signClasses([] { simulatorRuntimeSigns = true; });
}

void* signedFunction(void* plain, const void* slot) {
  if (!signs() || plain == nullptr) return plain;
  return pointerOf(simulatorRuntimePacia(bits(plain), bits(slot)));
}

void* authenticatedFunction(void* given, const char* what, const void* slot) {
  if (!signs() || given == nullptr) return given;
  return plainFunction(bits(given), bits(slot), what);
}

void* signedIsa(void* cls, const void* slot) {
  if (!signs() || cls == nullptr) return cls;
  return pointerOf(simulatorRuntimePacda(bits(cls), isaModifier(slot)));
}

void* authenticatedIsa(void* isa, const void* slot) {
  if (!signs() || isa == nullptr) return isa;
  const std::uint64_t plain = simulatorRuntimeXpacd(bits(isa));
  if (simulatorRuntimePacda(plain, isaModifier(slot)) != bits(isa))
    fatal("the isa of an object or a block is not signed as it must be");
  return pointerOf(plain);
}

}  // namespace sim::runtime

// The assembly has found it.
extern "C" [[gnu::visibility("hidden")]] [[noreturn]] void simulatorRuntimeWrongIsa();
void simulatorRuntimeWrongIsa() {
  sim::runtime::fatal("the isa of an object or a block is not signed as it must be");
}

// What compilers of this system cannot write into blocks themselves: objc/PointerAuthentication.h.
extern "C" {
void* objc_simulatorSignedIsa(void* cls, const void* slot) {
  return sim::runtime::signedIsa(cls, slot);
}
void* objc_simulatorSignedFunction(void* plain, const void* slot) {
  return sim::runtime::signedFunction(plain, slot);
}
void* objc_simulatorAuthenticatedFunction(void* given, const void* slot) {
  return sim::runtime::authenticatedFunction(given, "a block's function", slot);
}
}

#else

namespace sim::runtime {

bool processorSigns() {
  return false;
}
void beginSigning() {
  fatal("this processor cannot sign pointers");
}

void* signedFunction(void* plain, const void*) {
  return plain;
}
void* authenticatedFunction(void* given, const char*, const void*) {
  return given;
}
void* signedIsa(void* cls, const void*) {
  return cls;
}
void* authenticatedIsa(void* isa, const void*) {
  return isa;
}

}  // namespace sim::runtime

#endif
