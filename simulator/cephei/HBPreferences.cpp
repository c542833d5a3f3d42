#include "simulator/cephei/HBPreferences.h"

#include <map>

#include "simulator/foundation/NSNotificationCenter.h"
#include "simulator/foundation/Values.h"
#include "simulator/machine/Phone.h"

extern "C" {
id HBPreferencesDidChangeNotification;
}

namespace sim {
namespace {

// By domain; for good.
struct Instances {
  std::map<std::string, objc::Strong<objc::Object>> all;
};

auto& instances() {
  return Phone::current().state<Instances>().all;
}

bool isSame(objc::Object left, objc::Object right) {
  return left == right || objc::send<bool, "isEqual:">(left, right);
}

template <class Block>
objc::Strong<Block> copied(Block block) {
  return objc::adopt(Block(static_cast<id>(_Block_copy(block.get()))));
}

}  // namespace

objc::Object HBPreferences::initWithIdentifier(objc::Object name) {
  const auto unused = objc::adopt(objc::Object(self()));
  if (!name) return nullptr;
  auto& known = instances()[text(name)];
  if (!known) {
    domain = std::make_unique<PreferencesDomain>(text(name));
    known = unused;
  }
  return objc::Strong(known).detach();
}

objc::Object HBPreferences::preferencesForIdentifier(objc::Object name) {
  return objc::autorelease(
      objc::adopt(objc::send<objc::Object, "initWithIdentifier:">(objc_alloc(cls()), name)));
}

objc::Object HBPreferences::known(const std::string& name) {
  const auto found = instances().find(name);
  return found == instances().end() ? objc::Object() : found->second.get();
}

void HBPreferences::domainDidChangeElsewhere(const std::string& name) {
  const auto found = instances().find(name);
  if (found == instances().end()) return;
  Phone::current().queue.addNow([&preferences = of(found->second.get())] {
    preferences.domain->reload();
    preferences.didChange();
  });
}

std::vector<std::string> HBPreferences::requestedKeys(const std::string& name) {
  const auto found = instances().find(name);
  if (found == instances().end()) return {};
  return of(found->second.get()).domain->requestedKeys();
}

objc::Object HBPreferences::identifier() {
  return string(domain->name());
}

void HBPreferences::registerDefaults(objc::Object values) {
  const auto keys = objc::send<objc::Object, "allKeys">(values);
  const auto count = objc::send<unsigned long, "count">(keys);
  for (unsigned long index = 0; index < count; ++index) {
    const auto key = objc::send<objc::Object, "objectAtIndex:">(keys, index);
    domain->setDefault(text(key), objc::send<objc::Object, "objectForKey:">(values, key));
  }
  bindings.update(*domain);
}

// Tells, in this order: the bound variables, the notification's observers, the blocks of keys
// whose value is another, the blocks of the whole domain.
void HBPreferences::didChange() {
  bindings.update(*domain);
  objc::send<void, "postNotificationName:object:">(notificationCenter(),
                                                   HBPreferencesDidChangeNotification, self());
  notifyKeyObservers();
  const auto all = observers;  // a block may register another
  for (const auto& each : all) each.get()();
}

void HBPreferences::notifyKeyObservers() {
  for (std::size_t index = 0; index < keyObservers.size(); ++index) {
    const KeyObserver observer = keyObservers[index];
    const auto value = objc::retain(domain->value(observer.key));
    if (isSame(observer.seen.get(), value.get())) continue;
    keyObservers[index].seen = value;
    observer.block.get()(string(observer.key), value.get());
  }
}

void HBPreferences::removeAllObjects() {
  Phone::current().journal.record("-[HBPreferences removeAllObjects]");
  domain->clear();
  domain->save();
  didChange();
}

void HBPreferences::registerPreferenceChangeBlock(ChangeBlock block) {
  if (!block) return;
  observers.push_back(copied(block));
  block();
}

void HBPreferences::registerPreferenceChangeBlockForKey_block(objc::Object key,
                                                              KeyChangeBlock block) {
  if (!block) return;
  keyObservers.push_back({text(key), copied(block), objc::retain(objectForKey(key))});
}

}  // namespace sim
