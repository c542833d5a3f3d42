#include "simulator/launch/Host.h"

#include <dlfcn.h>
#include <link.h>

#include "objc/Ownership.h"
#include "simulator/launch/AbsentNames.h"
#include "simulator/launch/ClassJournal.h"
#include "simulator/launch/Frameworks.h"
#include "simulator/launch/Tracing.h"
#include "simulator/machine/Phone.h"
#include "simulator/standin/ExtensionTexts.h"
#include "simulator/standin/Registration.h"

namespace sim {
namespace {

// A name is looked up in everything that the extension links, the C library among it; only the
// image that holds the address tells whose it is.
bool isHeldBy(void* handle, void* address) {
  const link_map* own = nullptr;
  Dl_info unused;
  void* holder = nullptr;
  return dlinfo(handle, RTLD_DI_LINKMAP, &own) == 0 &&
         dladdr1(address, &unused, &holder, RTLD_DL_LINKMAP) != 0 && holder == own;
}

Host::Symbol described(void* address) {
  Dl_info unused;
  void* entry = nullptr;
  dladdr1(address, &unused, &entry, RTLD_DL_SYMENT);
  const auto* symbol = static_cast<const ElfW(Sym)*>(entry);
  using Kind = Host::Symbol::Kind;
  if (symbol == nullptr) return {address, Kind::other, 0};
  const int type = ELF64_ST_TYPE(symbol->st_info);
  if (type == STT_FUNC) return {address, Kind::function, 0};
  return {address, type == STT_OBJECT ? Kind::variable : Kind::other, symbol->st_size};
}

void registerForeignClass(const std::string& name) {
  Class made = objc_allocateClassPair(objc_getClass("NSObject"), name.c_str(), 0);
  if (made == nullptr) throw HostError("there is a class named " + name + " already");
  objc_registerClassPair(made);
}

}  // namespace

void Host::registerClasses() {
  if (registered_) return;
  registered_ = true;
  const objc::AutoreleasePool pool;
  registerFrameworks();
}

void Host::launch() {
  registerClasses();
  launchedAt_ = Phone::current().clock.uptime();
  const objc::AutoreleasePool pool;
  for (const std::string& name : Phone::current().setup.foreignClasses) registerForeignClass(name);
  const ClassJournal journal(Phone::current().setup.journalsClassChanges);
  traceNewClasses(Phone::current().setup.traced);
  loadExtensions();
  requireTraced(Phone::current().setup.traced);
  launched_ = true;
  launchSpringBoard();
  Phone::current().queue.runDue();
}

void Host::loadExtensions() {
  const AbsentNames absent;
  for (const std::filesystem::path& extension : extensions_) load(extension);
}

void Host::load(const std::filesystem::path& extension) {
  // Now and local, as the injection platform loads them: a missing symbol is an error here.
  void* handle = dlopen(std::filesystem::absolute(extension).c_str(), RTLD_NOW | RTLD_LOCAL);
  if (handle == nullptr) throw HostError(std::string("the extension does not load: ") + dlerror());
  handles_.push_back(handle);
  ExtensionTexts::current().add(handle);
}

std::optional<Host::Symbol> Host::symbol(const char* name) const {
  for (void* handle : handles_) {
    void* found = dlsym(handle, name);
    if (found != nullptr && isHeldBy(handle, found)) return described(found);
  }
  return std::nullopt;
}

}  // namespace sim
