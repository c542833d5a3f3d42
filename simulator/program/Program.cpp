#include "simulator/program/Program.h"

#include <algorithm>
#include <cstdio>
#include <iostream>

#include "simulator/host/Output.h"
#include "simulator/launch/Host.h"
#include "simulator/macho/Image.h"
#include "simulator/program/FidelityCommand.h"
#include "simulator/program/Options.h"
#include "simulator/program/PlayCommand.h"
#include "simulator/program/ReferenceCommand.h"
#include "simulator/program/ServeCommand.h"

namespace sim {

namespace {

int run(const Options& options) {
  if (options.slice) macho::preferSlice(*options.slice);
  Host::prepare(options.extensions);
  switch (options.action) {
    case Action::help:
      std::cout << usageText();
      return 0;
    case Action::play:
      return playScripts(options);
    case Action::serve:
      return servePhone(options);
    case Action::fidelity:
      return printFidelity();
    case Action::commands:
      return printReference();
    case Action::version:
      std::cout << "dozewell-simulator " DOZEWELL_VERSION "\n";
      return 0;
  }
  return 2;
}

int statusAfterOutput(int status) {
  if (isAllPrinted()) return status;
  std::cerr << "dozewell-simulator: " << outputLost << '\n';
  return std::max(status, 1);
}

}  // namespace

int runProgram(const std::vector<std::string>& words) {
  // Line by line: what was printed is not lost when an extension stops the program.
  std::setvbuf(stdout, nullptr, _IOLBF, 0);
  try {
    return statusAfterOutput(run(parseOptions(words)));
  } catch (const UsageError& error) {
    std::cerr << "dozewell-simulator: " << error.what() << "\n\n" << usageText();
    return 2;
  } catch (const std::exception& error) {
    std::cerr << "dozewell-simulator: " << error.what() << '\n';
    return 1;
  }
}

}  // namespace sim
