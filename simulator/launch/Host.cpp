#include "simulator/launch/Host.h"

#include <dlfcn.h>
#include <link.h>

#include <algorithm>

#include "objc/Ownership.h"
#include "simulator/launch/AbsentNames.h"
#include "simulator/launch/ClassJournal.h"
#include "simulator/launch/Frameworks.h"
#include "simulator/launch/Loading.h"
#include "simulator/launch/Tracing.h"
#include "simulator/machine/Phone.h"
#include "simulator/macho/Image.h"
#include "simulator/macho/Imports.h"
#include "simulator/runtime/Signing.h"
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

std::optional<Host::Symbol> exported(void* handle, const char* name) {
  void* found = dlsym(handle, name);
  if (found == nullptr || !isHeldBy(handle, found)) return std::nullopt;
  return described(found);
}

std::optional<Host::Symbol> exported(const macho::Image* image, const char* name) {
  const auto found = image->symbol(name);
  if (!found) return std::nullopt;
  using Kind = Host::Symbol::Kind;
  return Host::Symbol{found->address, found->isCode ? Kind::function : Kind::variable, found->size};
}

// The system's libraries are part of the host; the others' classes come with whoever names them.
bool loadLibrary(const std::string& name) {
  if (!macho::hasLibrary(name)) return false;
  if (name == "Cephei") dozewell_simulator_library_is_loaded(name.c_str());
  return true;
}

void registerForeignClass(const std::string& name) {
  Class made = objc_allocateClassPair(objc_getClass("NSObject"), name.c_str(), 0);
  if (made == nullptr) throw HostError("there is a class named " + name + " already");
  objc_registerClassPair(made);
}

}  // namespace

void Host::prepare(const std::vector<std::filesystem::path>& extensions) {
  if (std::ranges::any_of(extensions, macho::wantsSignedPointers)) sim::runtime::beginSigning();
}

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
  if (macho::isMachO(extension))
    loadForPhones(extension);
  else
    loadSharedObject(extension);
}

void Host::loadForPhones(const std::filesystem::path& extension) {
  try {
    const macho::Image& image = macho::Image::load(extension, loadLibrary);
    loaded_.emplace_back(&image);
    for (const std::string_view constants : image.constants())
      ExtensionTexts::current().add(constants);
  } catch (const macho::Error& error) {
    throw HostError("the extension does not load: " + extension.string() + ' ' + error.what());
  }
}

void Host::loadSharedObject(const std::filesystem::path& extension) {
  // Now and local, as the injection platform loads them: a missing symbol is an error here.
  void* handle = dlopen(std::filesystem::absolute(extension).c_str(), RTLD_NOW | RTLD_LOCAL);
  if (handle == nullptr) throw HostError(std::string("the extension does not load: ") + dlerror());
  loaded_.emplace_back(handle);
  ExtensionTexts::current().add(handle);
}

std::optional<Host::Symbol> Host::symbol(const char* name) const {
  for (const auto& each : loaded_) {
    const auto found =
        std::visit([name](auto* extension) { return exported(extension, name); }, each);
    if (found) return found;
  }
  return std::nullopt;
}

}  // namespace sim
