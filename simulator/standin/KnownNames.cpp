#include "simulator/standin/KnownNames.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <memory>

#include "objc/runtime.h"
#include "simulator/machine/NearestName.h"
#include "simulator/standin/ExtensionTexts.h"
#include "simulator/standin/Fidelity.h"

namespace sim {
namespace {

void addMethods(Names& names, Class cls) {
  unsigned count = 0;
  const std::unique_ptr<Method[], decltype(&std::free)> methods(class_copyMethodList(cls, &count),
                                                                &std::free);
  for (unsigned index = 0; index < count; ++index)
    names.emplace_back(sel_getName(method_getName(methods[index])));
}

// A property stands for its accessors.
void addStandInMembers(Names& names, const std::string& cls) {
  for (const std::string& name : standInMembers(cls)) {
    names.push_back(name);
    if (name.empty() || name.find(':') != std::string::npos) continue;
    std::string capital = name;
    capital[0] = char(std::toupper(static_cast<unsigned char>(capital[0])));
    names.push_back("set" + capital + ':');
    names.push_back("is" + capital);
  }
}

std::vector<Class> registeredClasses() {
  std::vector<Class> all(std::size_t(objc_getClassList(nullptr, 0)));
  objc_getClassList(all.data(), int(all.size()));
  return all;
}

}  // namespace

Names standInClasses() {
  Names names;
  for (const auto& [cls, members] : standIns()) names.push_back(cls);
  return names;
}

Names standInMembers(const std::string& cls) {
  const auto found = standIns().find(cls);
  return found == standIns().end() ? Names() : Names(found->second.begin(), found->second.end());
}

Names classNames() {
  Names names = standInClasses();
  for (Class cls : registeredClasses()) names.emplace_back(class_getName(cls));
  return names;
}

bool isKnownClass(const std::string& name) {
  return objc_lookUpClass(name.c_str()) != nullptr || standIns().contains(name);
}

std::string noSuchClass(const std::string& name) {
  if (const std::string library = libraryToLoadFor(name); !library.empty())
    return "no extension links lib" + library + ".so, which brings the class " + name;
  return "there is no class " + name + didYouMean(name, classNames());
}

Names selectorNames(const std::string& cls, bool ofClass) {
  Names names;
  addStandInMembers(names, cls);
  Class found = objc_lookUpClass(cls.c_str());
  if (found == nullptr) return names;
  if (ofClass) found = object_getClass(reinterpret_cast<id>(found));
  for (; found != nullptr; found = class_getSuperclass(found)) {
    addMethods(names, found);
    addStandInMembers(names, class_getName(found));
  }
  return names;
}

Names selectorNames() {
  Names names;
  for (Class cls : registeredClasses()) {
    addMethods(names, cls);
    addMethods(names, object_getClass(reinterpret_cast<id>(cls)));
  }
  for (const std::string& cls : standInClasses()) addStandInMembers(names, cls);
  return names;
}

Names extensionNames() {
  return ExtensionTexts::current().all();
}

bool isNamedByExtension(const std::string& name) {
  return ExtensionTexts::current().containEnd(name);
}

}  // namespace sim
