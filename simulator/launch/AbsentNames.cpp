#include "simulator/launch/AbsentNames.h"

#include <algorithm>
#include <cstdio>
#include <mutex>

#include "simulator/machine/NearestName.h"
#include "simulator/runtime/Absences.h"
#include "simulator/standin/Fidelity.h"
#include "simulator/standin/KnownNames.h"

namespace sim {
namespace {

using sim::runtime::Absence;

std::mutex noting;
std::set<std::string> classes;
std::set<std::pair<std::string, std::string>> methods;  // class, selector

void note(const Absence& absence) {
  const std::lock_guard guard(noting);
  if (absence.cls == nullptr)
    classes.insert(absence.name);
  else
    methods.emplace(class_getName(absence.cls), absence.name);
}

void reportClass(const std::string& name) {
  if (const std::string library = libraryToLoadFor(name); !library.empty()) {
    std::fprintf(stderr, "an extension looks for the class %s of %s, but none links lib%s.so\n",
                 name.c_str(), library.c_str(), library.c_str());
  }
  if (isKnownClass(name)) return;
  std::fprintf(stderr, "an extension looks for the class %s, which no phone has%s\n", name.c_str(),
               didYouMean(name, classNames()).c_str());
}

void reportMethod(const std::string& cls, const std::string& selector) {
  Names known = selectorNames(cls, false);
  const Names ofClass = selectorNames(cls, true);
  known.insert(known.end(), ofClass.begin(), ofClass.end());
  if (std::find(known.begin(), known.end(), selector) != known.end()) return;
  std::fprintf(stderr, "an extension hooks -[%s %s], which no phone has%s\n", cls.c_str(),
               selector.c_str(), didYouMean(selector, known).c_str());
}

}  // namespace

AbsentNames::AbsentNames() {
  sim::runtime::observeAbsences(note);
}

AbsentNames::~AbsentNames() {
  sim::runtime::observeAbsences(nullptr);
  const std::lock_guard guard(noting);
  for (const std::string& name : classes) reportClass(name);
  for (const auto& [cls, selector] : methods) reportMethod(cls, selector);
  classes.clear();
  methods.clear();
}

}  // namespace sim
