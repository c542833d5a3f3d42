// Protocols here are what classes say of themselves: names without lists of methods.
#include "simulator/runtime/Protocols.h"

#include <algorithm>
#include <cstdio>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "simulator/runtime/Class.h"
#include "simulator/runtime/ClassRegistry.h"
#include "simulator/runtime/Instances.h"
#include "simulator/runtime/Lists.h"
#include "simulator/runtime/ReferenceCounting.h"

namespace sim::runtime {
namespace {

// Lives forever, so the list of live objects does not know it. Guarded by runtimeLock().
struct ProtocolObject {
  InstanceHeader header;  // in front of every instance
  Protocol object;
  std::string name;
  bool registered;
  std::vector<Protocol*> adopted;
};

ProtocolObject& contentsOf(Protocol* protocol) {
  return *reinterpret_cast<ProtocolObject*>(&headerOf(protocol));
}

struct ProtocolTable {
  std::vector<std::unique_ptr<ProtocolObject>> all;
  std::unordered_map<std::string_view, Protocol*> registered;  // by name
};

ProtocolTable& table() {
  static auto* instance = new ProtocolTable;
  return *instance;
}

// Called with the lock held, like all that follow.
bool conforms(Protocol* protocol, Protocol* other);

bool anyConforms(const std::vector<Protocol*>& protocols, Protocol* other) {
  return std::any_of(protocols.begin(), protocols.end(),
                     [&](Protocol* one) { return conforms(one, other); });
}

// Two libraries may each bring a protocol: the name is what counts.
bool conforms(Protocol* protocol, Protocol* other) {
  const ProtocolObject& contents = contentsOf(protocol);
  return contents.name == contentsOf(other).name || anyConforms(contents.adopted, other);
}

void complain(const char* what, Protocol* protocol) {
  std::fprintf(stderr, "objc: protocol %s %s\n", contentsOf(protocol).name.c_str(), what);
}

// Protocols have no reference count.
id keep(id self, SEL) {
  return self;
}
void ignore(id, SEL) {}
id makeNone(id, SEL, void*) {
  return nullptr;
}

template <class Function>
void addMethod(Class cls, const char* name, Function* function, const char* types) {
  class_addMethod(cls, sel_registerName(name), reinterpret_cast<IMP>(function), types);
}

}  // namespace

void registerProtocolClass() {
  Class cls = objc_allocateClassPair(objc_getClass("NSObject"), "Protocol", 0);
  addMethod(cls, "retain", &keep, "@@:");
  addMethod(cls, "release", &ignore, "v@:");
  addMethod(cls, "autorelease", &keep, "@@:");
  // Only objc_allocateProtocol knows how large one is.
  addMethod(cls->metaclass(), "allocWithZone:", &makeNone, "@@:^{_NSZone=}");
  objc_registerClassPair(cls);
  Protocol* ofRoot = objc_allocateProtocol("NSObject");
  objc_registerProtocol(ofRoot);
  class_addProtocol(objc_getClass("NSObject"), ofRoot);
}

}  // namespace sim::runtime

using namespace sim::runtime;

Protocol* objc_getProtocol(const char* name) {
  if (name == nullptr) return nullptr;
  ensureBootstrapped();
  const std::lock_guard guard(runtimeLock());
  const auto found = table().registered.find(name);
  return found != table().registered.end() ? found->second : nullptr;
}

Protocol* objc_allocateProtocol(const char* name) {
  if (name == nullptr || objc_getProtocol(name) != nullptr) return nullptr;
  Class cls = objc_getClass("Protocol");
  const std::lock_guard guard(runtimeLock());
  auto& made = table().all.emplace_back(new ProtocolObject{{}, {cls}, name, false, {}});
  made->header.references.store(oneReference, std::memory_order_relaxed);
  return &made->object;
}

void objc_registerProtocol(Protocol* protocol) {
  if (protocol == nullptr) return;
  const std::lock_guard guard(runtimeLock());
  ProtocolObject& contents = contentsOf(protocol);
  if (!table().registered.emplace(contents.name, protocol).second) {
    complain("is registered already", protocol);
    return;
  }
  contents.registered = true;
}

void protocol_addProtocol(Protocol* protocol, Protocol* addition) {
  if (protocol == nullptr || addition == nullptr) return;
  const std::lock_guard guard(runtimeLock());
  if (contentsOf(protocol).registered)
    complain("is registered: nothing can be added", protocol);
  else if (!contentsOf(addition).registered)
    complain("is not registered: it cannot be added", addition);
  else
    contentsOf(protocol).adopted.push_back(addition);
}

const char* protocol_getName(Protocol* protocol) {
  return protocol != nullptr ? contentsOf(protocol).name.c_str() : "nil";
}

bool protocol_conformsToProtocol(Protocol* protocol, Protocol* other) {
  if (protocol == nullptr || other == nullptr) return false;
  const std::lock_guard guard(runtimeLock());
  return conforms(protocol, other);
}

bool protocol_isEqual(Protocol* protocol, Protocol* other) {
  return protocol == other || (protocol_conformsToProtocol(protocol, other) &&
                               protocol_conformsToProtocol(other, protocol));
}

bool class_addProtocol(Class cls, Protocol* protocol) {
  if (cls == nullptr || protocol == nullptr) return false;
  const std::lock_guard guard(runtimeLock());
  std::vector<Protocol*>& protocols = cls->data->protocols;
  if (anyConforms(protocols, protocol)) return false;
  protocols.insert(protocols.begin(), protocol);
  return true;
}

bool class_conformsToProtocol(Class cls, Protocol* protocol) {
  if (cls == nullptr || protocol == nullptr) return false;
  const std::lock_guard guard(runtimeLock());
  return anyConforms(cls->data->protocols, protocol);
}

Protocol** class_copyProtocolList(Class cls, unsigned int* count) {
  const std::lock_guard guard(runtimeLock());
  return copyList(cls != nullptr ? cls->data->protocols : std::vector<Protocol*>(), count);
}
