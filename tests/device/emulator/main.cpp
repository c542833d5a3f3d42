// emulator SLICE: loads the slice of samples/bridge.cpp and uses what it registered, as a host on a
// phone would. Prints what happened; status 1 and the reason when something is not as it must be.
#include <cstdio>

#include "Host.h"
#include "Signing.h"
#include "Slice.h"

namespace {

void* counter[8];  // an object of the sample's class

void useClass() {
  reinterpret_cast<void (*)(void*, const char*, long)>(host::method("add:"))(counter, "add:", 2);
  reinterpret_cast<void (*)(void*, const char*, long)>(host::method("add:"))(counter, "add:", 3);
  const long count =
      reinterpret_cast<long (*)(void*, const char*)>(host::method("count"))(counter, "count");
  host::journal += " count:" + std::to_string(count);
}

void useHook() {
  reinterpret_cast<void (*)(void*, const char*)>(host::method("act"))(host::object(), "act");
  host::runQueue();
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) fail("usage: emulator SLICE");
  Slice slice(argv[1], host::resolve);
  const Signing signing(slice.authenticates());
  host::start(signing);
  slice.runInitialisers();
  useClass();
  useHook();
  std::printf("%s:%s\n", slice.authenticates() ? "signed" : "plain", host::journal.c_str());
}
