// Names in a script that only a later moment can tell right from wrong.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "simulator/script/Command.h"
#include "simulator/standin/KnownNames.h"

namespace sim {

class NameChecks {
 public:
  // Throws ScriptError for a name that is unknown.
  using Check = std::function<void()>;

  // The line of the script whose command runs, for the checks that it adds.
  void beginLine(std::size_t number) { line_ = number; }
  // Runs the check at once where the names are known already.
  void add(Check check);
  // Runs what waits for this moment. Throws ScriptParseError, with the line that added the check.
  void namesAreKnown();

 private:
  struct Waiting {
    std::size_t line;
    Check check;
  };
  std::size_t line_ = 0;
  bool known_ = false;
  std::vector<Waiting> waiting_;
};

struct PhoneNameChecks {
  NameChecks system;  // known when the host's classes are registered
  NameChecks all;     // known when the extensions have loaded and the host is launched
};
// This phone's.
PhoneNameChecks& nameChecks();

// For a name that may be known nowhere on purpose: throws ScriptError, "WHAT NAME is known nowhere;
// did you mean …", where it is a letter or two from a known one or from one of an extension.
void requireNoTypo(const std::string& what, const Word& name, Names known);

}  // namespace sim
