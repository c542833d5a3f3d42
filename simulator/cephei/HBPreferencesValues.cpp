// The typed accessors of HBPreferences, and what it registers.
#include "simulator/cephei/HBPreferences.h"
#include "simulator/foundation/Values.h"
#include "simulator/machine/Phone.h"
#include "simulator/standin/StandIn.h"

namespace sim {
namespace {

objc::Object boxed(bool value) {
  return number(value);
}
objc::Object boxed(long value) {
  return number(value);
}
objc::Object boxed(double value) {
  return number(value);
}
objc::Object boxed(unsigned long value) {
  return objc::send<objc::Object, "numberWithUnsignedInteger:">(objc_getClass("NSNumber"), value);
}

}  // namespace

void HBPreferences::addBinding(objc::Object key, Bindings::Address address,
                               objc::Object otherwise) {
  domain->setDefault(text(key), otherwise);
  bindings.bind(text(key), address);
  bindings.update(*domain);
}

template <class T>
void HBPreferences::bind(T* address, T otherwise, objc::Object key) {
  addBinding(key, address, boxed(otherwise));
}

void HBPreferences::bindObject(id* address, objc::Object otherwise, objc::Object key) {
  addBinding(key, address, otherwise);
}

template <class T>
T HBPreferences::read(objc::Object key) {
  return converted<T>(domain->value(text(key)));
}

template <class T>
T HBPreferences::readOr(objc::Object key, T otherwise) {
  const objc::Object value = domain->value(text(key));
  return value ? converted<T>(value) : otherwise;
}

objc::Object HBPreferences::objectForKey(objc::Object key) {
  return domain->value(text(key));
}

objc::Object HBPreferences::objectForKey_default(objc::Object key, objc::Object otherwise) {
  const objc::Object value = domain->value(text(key));
  return value ? value : otherwise;
}

void HBPreferences::store(objc::Object value, objc::Object key, const std::string& message) {
  Phone::current().journal.record("-[HBPreferences " + message + " forKey:" + notation(key) + ']');
  domain->set(text(key), value);
  domain->save();
  didChange();
}

template <objc::FixedString Setter, class T>
void HBPreferences::write(T value, objc::Object key) {
  store(boxed(value), key, Setter.c_str() + notation(boxed(value)));
}

void HBPreferences::setObject_forKey(objc::Object value, objc::Object key) {
  store(value, key, "setObject:" + notation(value));
}

void HBPreferences::removeObjectForKey(objc::Object key) {
  Phone::current().journal.record("-[HBPreferences removeObjectForKey:" + notation(key) + ']');
  domain->set(text(key), nullptr);
  domain->save();
  didChange();
}

void HBPreferences::registerClass() {
  StandIn<HBPreferences>("Cephei", "HBPreferences", "NSObject")
      .method<"initWithIdentifier:", &HBPreferences::initWithIdentifier>()
      .classMethod<"preferencesForIdentifier:", &HBPreferences::preferencesForIdentifier>()
      .method<"identifier", &HBPreferences::identifier>()
      .method<"defaults", &HBPreferences::defaults>()
      .method<"dictionaryRepresentation", &HBPreferences::dictionaryRepresentation>()
      .method<"registerBool:default:forKey:", &HBPreferences::bind<bool>>()
      .method<"registerInteger:default:forKey:", &HBPreferences::bind<long>>()
      .method<"registerUnsignedInteger:default:forKey:", &HBPreferences::bind<unsigned long>>()
      .method<"registerFloat:default:forKey:", &HBPreferences::bind<double>>()
      .method<"registerDouble:default:forKey:", &HBPreferences::bind<double>>()
      .method<"registerObject:default:forKey:", &HBPreferences::bindObject>()
      .method<"registerDefaults:", &HBPreferences::registerDefaults>()
      .method<"boolForKey:", &HBPreferences::read<bool>>()
      .method<"integerForKey:", &HBPreferences::read<long>>()
      .method<"unsignedIntegerForKey:", &HBPreferences::read<unsigned long>>()
      .method<"floatForKey:", &HBPreferences::read<double>>()
      .method<"doubleForKey:", &HBPreferences::read<double>>()
      .method<"objectForKey:", &HBPreferences::objectForKey>()
      .method<"boolForKey:default:", &HBPreferences::readOr<bool>>()
      .method<"integerForKey:default:", &HBPreferences::readOr<long>>()
      .method<"unsignedIntegerForKey:default:", &HBPreferences::readOr<unsigned long>>()
      .method<"floatForKey:default:", &HBPreferences::readOr<double>>()
      .method<"doubleForKey:default:", &HBPreferences::readOr<double>>()
      .method<"objectForKey:default:", &HBPreferences::objectForKey_default>()
      .method<"setBool:forKey:", &HBPreferences::write<"setBool:", bool>>()
      .method<"setInteger:forKey:", &HBPreferences::write<"setInteger:", long>>()
      .method<"setUnsignedInteger:forKey:",
              &HBPreferences::write<"setUnsignedInteger:", unsigned long>>()
      .method<"setFloat:forKey:", &HBPreferences::write<"setFloat:", double>>()
      .method<"setDouble:forKey:", &HBPreferences::write<"setDouble:", double>>()
      .method<"setObject:forKey:", &HBPreferences::setObject_forKey>()
      .method<"removeObjectForKey:", &HBPreferences::removeObjectForKey>()
      .method<"removeAllObjects", &HBPreferences::removeAllObjects>()
      .method<"registerPreferenceChangeBlock:", &HBPreferences::registerPreferenceChangeBlock>()
      .method<"registerPreferenceChangeBlockForKey:block:",
              &HBPreferences::registerPreferenceChangeBlockForKey_block>()
      .finish();
}

}  // namespace sim
