// An extension that hooks what no phone has.
#include "objc/runtime.h"

namespace {

void nothing(id, SEL) {}

void hook(const char* cls, const char* selector) {
  MSHookMessageEx(objc_getClass(cls), sel_registerName(selector), reinterpret_cast<IMP>(&nothing),
                  nullptr);
}

[[gnu::constructor]] void load() {
  hook("SBMediaControler", "pause");
  hook("SBMediaController", "puase");
  hook("SBVolumeControl", "setVolume:forCategory:");
  hook("SBBacklightController", "screenIsOn");
}

}  // namespace
