#include "simulator/standin/Fidelity.h"

#include <algorithm>
#include <tuple>

#include "simulator/machine/Phone.h"
#include "simulator/standin/Versions.h"

namespace sim {
namespace {

// Function-local, because stand-ins of C functions record themselves before main. None of these is
// destroyed: each host would copy the memory that it shares with all others, to free it.
std::vector<FidelityRecord>& records() {
  static auto* all = new std::vector<FidelityRecord>;
  return *all;
}

StandIns& allStandIns() {
  static auto* all = new StandIns;
  return *all;
}

bool namesOnly = false;

// Classes that were registered by name alone, and the library of each.
std::map<std::string, std::string>& classesToLoad() {
  static auto* all = new std::map<std::string, std::string>;
  return *all;
}

const char* gradeName(Grade grade) {
  switch (grade) {
    case Grade::real:
      return "real";
    case Grade::partial:
      return "partial";
    case Grade::stub:
      return "stub";
  }
  return "";
}

std::string signature(const FidelityRecord& record) {
  switch (record.kind) {
    case 'f':
      return record.name;
    case '@':
      return "@property " + record.name;
    default:
      return std::string(1, record.kind) + "[" + record.cls + " " + record.name + "]";
  }
}

std::string classTitle(const std::string& cls) {
  if (cls.empty()) return "Functions";
  const std::string versions = versionsOf(cls).text();
  return cls + " (" + (versions.empty() ? "all versions" : versions) + ')';
}

std::string versionNote(const FidelityRecord& record) {
  const std::string versions = versionsOf(record.cls, record.name).text();
  return versions.empty() ? versions : " (" + versions + ')';
}

// A bar would end the table cell, a line break the table.
std::string cell(std::string text) {
  for (std::size_t at = 0; (at = text.find('|', at)) != std::string::npos; at += 2)
    text.insert(at, "\\");
  std::replace(text.begin(), text.end(), '\n', ' ');
  return text;
}

constexpr const char* introduction =
    "# How faithful the simulated phone is\n"
    "\n"
    "Generated from the registrations of the stand-ins by `dozewell-simulator fidelity`.\n"
    "\n"
    "- **real**: behaves like the platform in everything an extension can observe.\n"
    "- **partial**: works, with the difference named beside it.\n"
    "- **stub**: does nothing but write `stub -[Class selector]` to the journal.\n"
    "\n"
    "What is not listed does not exist: sending it stops the program with "
    "`unrecognized selector`, as on a phone.\n"
    "\n"
    "Behind a class stand the versions of the system that have it, as far as is known; behind a "
    "method, those of them that have it, where not all do. `ios VERSION` in a script chooses.\n";

constexpr const char* tableHead = "\n| what | grade | difference |\n|---|---|---|\n";

}  // namespace

FidelityPage::FidelityPage(const char* framework, const char* cls)
    : framework_(framework), cls_(cls) {
  allStandIns()[cls];
  if (namesOnly)
    classesToLoad()[cls] = framework;
  else
    classesToLoad().erase(cls);
}

bool FidelityPage::isPresent() const {
  return !namesOnly && Phone::current().setup.hasClass(cls_) &&
         versionsOf(cls_).contains(systemMajor());
}

bool FidelityPage::record(char kind, const char* name, const Rating& rating) const {
  allStandIns()[cls_].insert(name);
  const Setup& setup = Phone::current().setup;
  if (namesOnly || !setup.hasClass(cls_) || !setup.hasMethod(cls_, name)) return false;
  // Also what other versions have: the page says which.
  records().push_back({framework_, cls_, kind, name, rating});
  return isPresent() && versionsOf(cls_, name).contains(systemMajor());
}

NamesOnly::NamesOnly() {
  namesOnly = true;
}

NamesOnly::~NamesOnly() {
  namesOnly = false;
}

std::string libraryToLoadFor(const std::string& cls) {
  const auto found = classesToLoad().find(cls);
  return found == classesToLoad().end() ? std::string() : found->second;
}

void recordFunction(const char* framework, const char* name, const Rating& rating) {
  records().push_back({framework, "", 'f', name, rating});
}

const StandIns& standIns() {
  return allStandIns();
}

const std::vector<FidelityRecord>& fidelityRecords() {
  return records();
}

std::string fidelityMarkdown() {
  std::vector<FidelityRecord> sorted = records();
  const auto order = [](const FidelityRecord& record) {
    return std::tie(record.framework, record.cls, record.name, record.kind);
  };
  std::sort(sorted.begin(), sorted.end(),
            [&order](const auto& left, const auto& right) { return order(left) < order(right); });

  std::string page = introduction;
  const FidelityRecord* previous = nullptr;
  for (const FidelityRecord& record : sorted) {
    const bool newFramework = previous == nullptr || previous->framework != record.framework;
    if (newFramework) page += "\n## " + record.framework + "\n";
    if (newFramework || previous->cls != record.cls) {
      page += "\n### " + classTitle(record.cls) + "\n";
      page += tableHead;
    }
    page += "| `" + cell(signature(record)) + '`' + versionNote(record) + " | " +
            gradeName(record.rating.grade) + " | " + cell(record.rating.difference) + " |\n";
    previous = &record;
  }
  return page;
}

}  // namespace sim
