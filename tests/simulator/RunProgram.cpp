#include "tests/simulator/RunProgram.h"

#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "simulator/host/TemporaryFolder.h"

namespace sim {
namespace {

const std::filesystem::path& testFolder() {
  static const TemporaryFolder made;
  return made.path();
}

std::string contents(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

}  // namespace

std::string firstLine(const std::string& text) {
  return text.substr(0, text.find('\n'));
}

std::string writeFile(const std::string& name, const std::string& text) {
  const auto file = testFolder() / name;
  std::ofstream(file, std::ios::binary) << text;
  return file.string();
}

Outcome runSimulator(const std::string& shellWords) {
  const auto output = testFolder() / "output", errors = testFolder() / "errors";
  const std::string command =
      "'" SIMULATOR "' " + shellWords + " > '" + output.string() + "' 2> '" + errors.string() + "'";
  const int status = std::system(command.c_str());
  return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, contents(output), contents(errors)};
}

Outcome play(const std::string& script, const std::string& options) {
  const std::string file = writeFile("script.phone", script);
  Outcome outcome = runSimulator("play " + options + " --tweak '" EXTENSION "' '" + file + "'");
  for (std::size_t at; (at = outcome.errors.find(file)) != std::string::npos;)
    outcome.errors.replace(at, file.size(), "SCRIPT");
  return outcome;
}

}  // namespace sim
