#include "simulator/script/values/Reference.h"

namespace sim {
namespace {

const char* when(Stage stage) {
  switch (stage) {
    case Stage::setup:
      return " Before `boot` only.";
    case Stage::running:
      return " While the host runs.";
    case Stage::booted:
      return " After `boot`, also while the host is dead.";
    case Stage::any:
      return " At any time.";
  }
  return "";
}

}  // namespace

std::string commandReference(const CommandTable& table) {
  std::string page;
  for (const auto& [name, command] : table.all()) {
    if (!page.empty()) page += '\n';
    page += "### " + name + "\n\n`" + command.usage + "`\n\n" + command.help + when(command.stage) +
            "\n\n```\n" + command.example + "\n```\n";
  }
  return page;
}

}  // namespace sim
