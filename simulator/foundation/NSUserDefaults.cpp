#include "simulator/foundation/NSUserDefaults.h"

#include "simulator/foundation/Exception.h"
#include "simulator/foundation/Kind.h"
#include "simulator/foundation/NSDictionary.h"
#include "simulator/foundation/NSUserDefaultsTypes.h"
#include "simulator/foundation/PropertyList.h"
#include "simulator/foundation/UserDefaultsFile.h"
#include "simulator/foundation/Values.h"
#include "simulator/machine/Phone.h"
#include "simulator/standin/StandIn.h"

namespace sim {
namespace {

using objc::Object;
using objc::Strong;

struct StandardDefaults {
  Object object;  // nil until it is asked for; owned, and never given up
};

Object& theStandard() {
  return Phone::current().state<StandardDefaults>().object;
}

Object standardUserDefaults() {
  if (!theStandard()) theStandard() = NSUserDefaults::make().detach();
  return theStandard();
}

void journal(const std::string& message) {
  Phone::current().journal.record("-[NSUserDefaults " + message + ']');
}

void put(KeyTable& table, Object key, Object value) {
  table.put(objc::adopt(objc::send<Object, "copy">(key)).get(), value);
}

}  // namespace

void NSUserDefaults::load() {
  if (loaded) return;
  loaded = true;
  const PropertyListNode root = loadUserDefaults();
  values = NSDictionary::of(propertyListObject(root.get())).table;
}

Object NSUserDefaults::objectForKey(Object key) {
  load();
  if (const KeyEntry* entry = values.find(key)) return entry->value;
  const KeyEntry* fallback = registered.find(key);
  return fallback == nullptr ? Object() : fallback->value.get();
}

void NSUserDefaults::setObject(Object value, Object key) {
  if (!value) return removeObjectForKey(key);
  load();
  std::string problem;
  const Object copied = propertyListCopy(value, &problem);
  if (!copied) {
    raiseException("NSInvalidArgumentException", "Attempt to insert non-property list object " +
                                                     description(value) + " for key " + text(key));
  }
  put(values, key, copied);
  changed = true;
  journal("setObject:" + notation(copied) + " forKey:" + notation(key));
}

void NSUserDefaults::removeObjectForKey(Object key) {
  load();
  const Strong<Object> kept = objc::retain(key);
  if (!key || !values.remove(key)) return;
  changed = true;
  journal("removeObjectForKey:" + notation(kept));
}

bool NSUserDefaults::save() {
  if (!changed) return true;
  Strong<Object> all = NSDictionary::make();
  NSDictionary::of(all.get()).table = values;
  std::string problem;
  const PropertyListNode root = propertyListNode(all, &problem);
  if (!root || !saveUserDefaults(root.get())) return false;
  changed = false;
  return true;
}

bool NSUserDefaults::synchronize() {
  load();
  const bool saved = save();
  journal("synchronize");
  return saved;
}

Object NSUserDefaults::dictionaryRepresentation() {
  load();
  Strong<Object> all = NSDictionary::make();
  KeyTable& table = NSDictionary::of(all.get()).table;
  table = registered;
  for (const KeyEntry& entry : values) table.put(entry.key, entry.value);
  return autorelease(std::move(all));
}

void NSUserDefaults::registerDefaults(Object dictionary) {
  const NSDictionary* state = stateOf<NSDictionary>(dictionary);
  if (state == nullptr) return;
  for (const KeyEntry& entry : state->table) put(registered, entry.key, entry.value);
}

void saveChangedUserDefaults() {
  if (theStandard()) NSUserDefaults::of(theStandard()).save();
}

void userDefaultChanged(Object key, Object value) {
  if (!theStandard()) return;
  NSUserDefaults& defaults = NSUserDefaults::of(theStandard());
  if (!defaults.loaded) return;
  if (value)
    put(defaults.values, key, value);
  else
    defaults.values.remove(key);
}

void NSUserDefaults::registerClass() {
  StandIn<NSUserDefaults> standIn("Foundation", "NSUserDefaults", "NSObject");
  standIn.classMethod<"standardUserDefaults", &standardUserDefaults>()
      .method<"objectForKey:", &NSUserDefaults::objectForKey>()
      .method<"valueForKey:", &NSUserDefaults::objectForKey>()
      .partial<"setObject:forKey:", &NSUserDefaults::setObject>(
          "written to the file by synchronize; posts no NSUserDefaultsDidChangeNotification")
      .partial<"setValue:forKey:", &NSUserDefaults::setObject>(
          "written to the file by synchronize; posts no NSUserDefaultsDidChangeNotification")
      .partial<"removeObjectForKey:", &NSUserDefaults::removeObjectForKey>(
          "written to the file by synchronize; posts no NSUserDefaultsDidChangeNotification")
      .method<"synchronize", &NSUserDefaults::synchronize>()
      .partial<"dictionaryRepresentation", &NSUserDefaults::dictionaryRepresentation>(
          "the process's own defaults and the registered ones, not the global domain")
      .method<"registerDefaults:", &NSUserDefaults::registerDefaults>();
  addTypedAccess(standIn);
  standIn.finish();
}

}  // namespace sim
