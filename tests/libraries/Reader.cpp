// An extension that reads the preferences as soon as it is loaded, as most do.
#include "objc/ClassLookup.h"
#include "platform/Cephei.h"

extern "C" {
[[gnu::visibility("default")]] long READER_LENGTH = -1;  // -1: there is no preferences library
}

namespace {

[[gnu::constructor]] void load() {
  const objc::AutoreleasePool pool;
  if (!HBPreferences::isInstalled()) return;
  const auto domain = HBPreferences::make("com.example.reader"_ns);
  domain->registerInteger(&READER_LENGTH, 12, "length"_ns);
}

}  // namespace
