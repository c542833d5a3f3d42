#include "tweak/settings/Dozewell2StorageManager.h"

#include <utility>

#include "objc/Class.h"

namespace {

// How a setting of each type is kept.
template <class T>
struct Field {
  using type = T;
};
template <>
struct Field<NSString> {
  using type = objc::Strong<NSString>;
};

struct Dozewell2StorageManagerImplementation
    : objc::Implementation<Dozewell2StorageManagerImplementation> {
#define SETTING(number, T, name, otherwise) Field<T>::type name;
#include "tweak/settings/Settings.def"
  objc::Strong<NSDictionary> wholeStorageDictionary;  // reserved: nothing fills or reads it

  static Dozewell2StorageManagerImplementation& sharedInstance() {
    return shared();
  }
};

using Store = Dozewell2StorageManagerImplementation;

void bind(HBPreferences domain, bool& field, bool otherwise, NSString key) {
  domain.registerBool(&field, otherwise, key);
}
void bind(HBPreferences domain, long& field, long otherwise, NSString key) {
  domain.registerInteger(&field, otherwise, key);
}
void bind(HBPreferences domain, double& field, double otherwise, NSString key) {
  domain.registerFloat(&field, otherwise, key);
}
void bind(HBPreferences domain, objc::Strong<NSString>& field, objc::Object otherwise,
          NSString key) {
  domain.registerObject(field.slot(), otherwise, key);
}

// bindSetting<NUMBER>, one for each line of the list. A number that stands there twice or not at
// all does not compile.
template <int number>
void bindSetting(HBPreferences domain, Store& store) = delete;
#define SETTING(number, T, name, otherwise)                       \
  template <>                                                     \
  void bindSetting<number>(HBPreferences domain, Store & store) { \
    bind(domain, store.name, otherwise, NSString::string(#name)); \
  }
#include "tweak/settings/Settings.def"

enum Line : int {
#define SETTING(number, T, name, otherwise) line_##name,
#include "tweak/settings/Settings.def"
  settingCount
};

template <int... index>
void bindInOrder(HBPreferences domain, std::integer_sequence<int, index...>) {
  (bindSetting<index + 1>(domain, Store::shared()), ...);
}

}  // namespace

void Dozewell2StorageManager::bindTo(HBPreferences domain) {
  bindInOrder(domain, std::make_integer_sequence<int, settingCount>());
}

Class Dozewell2StorageManager::cls() {
  return Store::cls();
}

objc::Registration Dozewell2StorageManager::registerClass() {
  objc::ClassBuilder<Store> builder("Dozewell2StorageManager", "NSObject");
  builder.classMethod<"sharedInstance", &Store::sharedInstance>();
#define SETTING(number, T, name, otherwise) builder.readonlyProperty<#name, &Store::name>();
#include "tweak/settings/Settings.def"
  builder.property<"wholeStorageDictionary", &Store::wholeStorageDictionary>();
  return builder.finish();
}
