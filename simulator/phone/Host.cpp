#include "simulator/phone/Host.h"

#include <dlfcn.h>

#include "objc/Ownership.h"
#include "simulator/Frameworks.h"
#include "simulator/phone/ClassJournal.h"
#include "simulator/phone/Phone.h"
#include "simulator/phone/script/Tracing.h"

namespace sim {

void Host::registerClasses() {
  if (registered_) return;
  registered_ = true;
  const objc::AutoreleasePool pool;
  registerFrameworks();
}

void Host::launch() {
  registerClasses();
  const objc::AutoreleasePool pool;
  const ClassJournal journal(Phone::current().setup.journalsClassChanges);
  traceMethods(Phone::current().setup.traced);
  for (const std::filesystem::path& extension : extensions_) load(extension);
  launched_ = true;
  launchSpringBoard();
  Phone::current().queue.runDue();
}

void Host::load(const std::filesystem::path& extension) {
  // Now and local, as the injection platform loads them: a missing symbol is an error here.
  void* handle = dlopen(std::filesystem::absolute(extension).c_str(), RTLD_NOW | RTLD_LOCAL);
  if (handle == nullptr) throw HostError(std::string("the extension does not load: ") + dlerror());
  handles_.push_back(handle);
}

void* Host::symbol(const char* name) const {
  for (void* handle : handles_) {
    if (void* found = dlsym(handle, name)) return found;
  }
  return nullptr;
}

}  // namespace sim
