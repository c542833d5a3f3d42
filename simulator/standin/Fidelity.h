// How faithful each stand-in is: recorded where it is registered, printed as docs/fidelity.md.
#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

namespace sim {

enum class Grade { real, partial, stub };

struct Rating {
  Grade grade;
  std::string difference;  // for partial: how it differs from the platform, one line
};

struct FidelityRecord {
  std::string framework;
  std::string cls;
  char kind;  // '-' instance method, '+' class method, '@' property, 'f' C function
  std::string name;
  Rating rating;
};

// One class's part of the record, which also asks the set-up what is missing.
class FidelityPage {
 public:
  FidelityPage(const char* framework, const char* cls);

  bool isPresent() const;
  // False when the phone's set-up says that the class lacks this method.
  bool record(char kind, const char* name, const Rating& rating) const;

 private:
  const char* framework_;
  const char* cls_;
};

// As long as it lives, stand-ins that register leave no more than their names: the library that
// brings them is not loaded yet.
class NamesOnly {
 public:
  NamesOnly();
  ~NamesOnly();
  NamesOnly(const NamesOnly&) = delete;
  NamesOnly& operator=(const NamesOnly&) = delete;
};

// The library that brings the class of that name; empty when the class needs none, or when the
// library is loaded.
std::string libraryToLoadFor(const std::string& cls);

// Every class that asked, with the names of its methods and properties: also what the phone's
// set-up leaves out. Empty before the phone boots.
using StandIns = std::map<std::string, std::set<std::string>, std::less<>>;
const StandIns& standIns();

// C functions and data symbols of the host, which register themselves nowhere.
void recordFunction(const char* framework, const char* name, const Rating& rating);

const std::vector<FidelityRecord>& fidelityRecords();
// The whole record as a Markdown page, sorted by framework, class and name.
std::string fidelityMarkdown();

}  // namespace sim
