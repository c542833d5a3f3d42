#include "simulator/machine/Phone.h"

#include <cstdio>
#include <cstdlib>
#include <nlohmann/json.hpp>

#include "objc/Ownership.h"

namespace sim {
namespace {

Phone* theCurrent = nullptr;

}  // namespace

Phone::Phone(const std::filesystem::path& root) : root_(std::filesystem::absolute(root)) {
  theCurrent = this;
}

Phone::~Phone() {
  {
    // While this is still the phone that the objects in them may ask for as they end.
    const objc::AutoreleasePool pool;
    queue.clear();
    states_.clear();
  }
  if (theCurrent == this) theCurrent = nullptr;
}

Phone& Phone::current() {
  if (theCurrent == nullptr) {
    std::fputs("sim::Phone::current() is used before a phone exists\n", stderr);
    std::abort();
  }
  return *theCurrent;
}

std::filesystem::path pathWithin(std::string_view path) {
  // The system's own calls end at a NUL, behind which ".." would look like another name.
  const std::string_view whole = path.substr(0, path.find('\0'));
  // Normalised as an absolute path, ".." at the top goes nowhere: nothing leads out.
  return (std::filesystem::path("/") / whole).lexically_normal().relative_path();
}

std::filesystem::path Phone::file(std::string_view phonePath) const {
  return root_ / pathWithin(phonePath);
}

void Phone::survives(std::string name, Survivor survivor) {
  survivors_.insert_or_assign(std::move(name), std::move(survivor));
}

nlohmann::json Phone::saveSurvivors() const {
  auto saved = nlohmann::json::object();
  for (const auto& [name, survivor] : survivors_) saved[name] = survivor.save();
  return saved;
}

void Phone::restoreSurvivors(const nlohmann::json& saved) {
  for (const auto& [name, survivor] : survivors_) {
    if (const auto found = saved.find(name); found != saved.end()) survivor.restore(*found);
  }
}

}  // namespace sim
