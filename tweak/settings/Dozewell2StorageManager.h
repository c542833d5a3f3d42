// Every setting of the extension, kept current by the preferences library.
#pragma once

#include "objc/Registration.h"
#include "platform/Cephei.h"

// The key of each setting in the domain.
namespace setting_key {
#define SETTING(number, T, name, otherwise) inline constexpr char name[] = #name;
#include "tweak/settings/Settings.def"
}  // namespace setting_key

// Ask at the moment of use and do not keep the answer: it follows the preferences domain while the
// host runs. Main thread. The store has no setters; writers write to the domain. In a process where
// nothing was registered, and on a phone without the preferences library, everything is 0, NO and
// nil.
struct Dozewell2StorageManager : NSObject {
  using NSObject::NSObject;

  static Dozewell2StorageManager sharedInstance() {
    return objc::send<Dozewell2StorageManager, "sharedInstance">(cls());
  }

  // `bool enabled()`, `long enabledModes()` and so on: Settings.def lists them, with their units.
#define SETTING(number, T, name, otherwise) \
  T name() const {                          \
    return objc::send<T, #name>(*this);     \
  }
#include "tweak/settings/Settings.def"

  // Registers every setting with the domain and binds it to its field. Once per process.
  static void bindTo(HBPreferences domain);

  static Class cls();  // nil until it is registered
  static objc::Registration registerClass();
};
