// Script commands about alerts.
#include <string>

#include "objc/Message.h"
#include "simulator/foundation/Values.h"
#include "simulator/machine/Phone.h"
#include "simulator/script/Command.h"
#include "simulator/script/commands/UIKitCommands.h"
#include "simulator/uikit/alerts/UIAlertAction.h"
#include "simulator/uikit/alerts/UIAlertController.h"

namespace sim {
namespace {

using objc::Object;

std::string titleOf(Object alert) {
  return alert ? sim::quoted(text(UIAlertController::of(alert).alertTitle)) : "none";
}

std::string buttonsOf(Object alert) {
  std::string all;
  for (const auto& action : UIAlertController::of(alert).actions)
    all += (all.empty() ? "" : ", ") + sim::quoted(text(UIAlertAction::of(action.get()).title));
  return all;
}

void pressAlert(Arguments& words) {
  const Word title = words.word("the title of a button");
  words.finish();
  const Object alert = UIAlertController::shown();
  if (!alert) throw ScriptError(0, "there is no alert");
  const Object action = UIAlertController::of(alert).actionTitled(title.text);
  if (!action)
    throw ScriptError(title.column, "the alert has no button " + sim::quoted(title.text) + " but " +
                                        buttonsOf(alert));
  Phone::current().journal.record("user press-alert " + sim::quoted(title.text));
  UIAlertController::of(alert).press(action);
}

void expectAlert(Arguments& words) {
  const Word expected = words.word("the title of an alert, or none");
  words.finish();
  const bool wantsNone = !expected.quoted && expected.text == "none";
  const std::string wanted = wantsNone ? "none" : sim::quoted(expected.text);
  const std::string found = titleOf(UIAlertController::shown());
  if (found != wanted)
    throw ScriptError(expected.column, "expected the alert " + wanted + ", found " + found);
}

}  // namespace

void addAlertCommands(CommandTable& table) {
  table.add({"press-alert", Stage::running, "press-alert TITLE", "press-alert \"Later\"",
             "The user presses a button of the uppermost alert, which goes before the button's "
             "handler runs.",
             pressAlert});
  table.add({"expect-alert", Stage::running, "expect-alert TITLE|none", "expect-alert none",
             "Whether an alert of that title, or none, is the uppermost on the screen.",
             expectAlert});
}

}  // namespace sim
