#include "simulator/program/PlayCommand.h"

#include <cerrno>
#include <cstring>
#include <iostream>

#include "simulator/host/EndSignals.h"
#include "simulator/host/PhonePackage.h"
#include "simulator/host/ScriptPlayer.h"
#include "simulator/host/TemporaryFolder.h"
#include "simulator/script/words/Script.h"

namespace sim {

namespace files = std::filesystem;

namespace {

ScriptJob jobFor(const Options& options, const files::path& script, const files::path& root) {
  ScriptJob job;
  job.options = {script,           files::canonical(root), options.extensions,
                 options.playlist, options.folder,         options.quiet};
  job.text = scriptText(script);
  job.processorSeconds = options.limit;
  return job;
}

// As compilers do, so that editors find the line.
void print(const files::path& script, const ScriptOutcome& outcome) {
  const auto place = [&script](std::size_t line, std::size_t column) {
    return script.string() + ':' + std::to_string(line) + ':' + std::to_string(column) + ": ";
  };
  if (!outcome.error.empty())
    std::cerr << (outcome.line > 0 ? place(outcome.line, outcome.column) : "") << outcome.error
              << '\n';
  if (!outcome.crash) return;
  const std::size_t line = outcome.crash->line;
  std::cerr << (line > 0 ? place(line, 1) : script.string() + ": ") << "the phone stopped here\n"
            << asText(*outcome.crash);
}

int playOne(const Options& options, const files::path& script, ScriptPlayer& player) {
  try {
    const TemporaryFolder temporary;
    const auto root = options.root.value_or(temporary.path() / "phone");
    files::create_directories(root);
    if (options.package) installPackage(*options.package, root);
    const ScriptOutcome outcome = player.play(jobFor(options, script, root));
    print(script, outcome);
    return outcome.status;
  } catch (const EndSignal&) {
    throw;
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 1;
  }
}

int playAll(const Options& options) {
  const EndSignals endSignals;
  ScriptPlayer player(endSignals.descriptor());
  int worst = 0;
  for (const files::path& script : options.files)
    worst = std::max(worst, playOne(options, script, player));
  return worst;
}

}  // namespace

int playScripts(const Options& options) {
  try {
    return playAll(options);
  } catch (const EndSignal& signal) {
    EndSignals::endBy(signal.number);
  }
}

}  // namespace sim
