// The host's user defaults.
//
// On a phone every change goes to another process at once. Here a change is visible at once, and
// is written to the file by synchronize, and at an orderly end of the process: a host that is
// killed loses what it had not synchronised. That is the harsher of the two, so an extension that
// survives here survives on a phone.
#pragma once

#include "objc/Class.h"
#include "simulator/foundation/KeyTable.h"

namespace sim {

struct NSUserDefaults : objc::Implementation<NSUserDefaults> {
  KeyTable values;
  KeyTable registered;  // fallbacks, never written
  bool loaded = false;
  bool changed = false;  // since the file was written

  objc::Object objectForKey(objc::Object key);
  void setObject(objc::Object value, objc::Object key);
  void removeObjectForKey(objc::Object key);
  bool synchronize();
  objc::Object dictionaryRepresentation();
  void registerDefaults(objc::Object dictionary);

  void load();
  bool save();  // what has changed

  static void registerClass();
};

// At an orderly end of the process: writes what has not been synchronised. Journals nothing.
void saveChangedUserDefaults();

// The file has been given another value for the key (nil: none) by somebody else.
void userDefaultChanged(objc::Object key, objc::Object value);

}  // namespace sim
