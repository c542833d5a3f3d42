// Script commands about what is on the screen.
#include <iostream>
#include <map>
#include <string>

#include "objc/Message.h"
#include "simulator/foundation/Kind.h"
#include "simulator/foundation/NSValue.h"
#include "simulator/foundation/Values.h"
#include "simulator/machine/Phone.h"
#include "simulator/script/commands/UIKitCommands.h"
#include "simulator/script/values/Target.h"
#include "simulator/uikit/application/UIApplication.h"
#include "simulator/uikit/views/UILabel.h"
#include "simulator/uikit/views/UIView.h"

namespace sim {
namespace {

using objc::Object;

// UILabel {{0, 0}, {30, 32}} alpha 0.3 hidden "7"
std::string lineOf(Object view) {
  const UIView& state = UIView::of(view);
  const CGRect frame = state.geometry().frame();
  std::string line = object_getClassName(view.get());
  line += ' ' + structureNotation("{CGRect={CGPoint=dd}{CGSize=dd}}", &frame);
  if (state.alpha() != 1) line += " alpha " + notation(state.alpha());
  if (state.isHidden()) line += " hidden";
  if (const UILabel* label = stateOf<UILabel>(view)) line += ' ' + notation(label->text.get());
  return line;
}

void print(Object view, std::size_t depth) {
  std::cout << std::string(2 * depth, ' ') << lineOf(view) << '\n';
  for (const auto& child : UIView::of(view).children) print(child.get(), depth + 1);
}

void tree(Arguments& words) {
  const Word word = words.word("a view");
  words.finish();
  const Object view = targetObject(word);
  if (!isA<UIView>(view))
    throw ScriptError(word.column,
                      word.text + ": expected a view, found " + object_getClassName(view.get()));
  print(view, 0);
}

const std::map<std::string, long, std::less<>> orientations = {
    {"portrait", UIApplication::portrait},
    {"upside-down", UIApplication::upsideDown},
    {"landscape-right", UIApplication::landscapeRight},
    {"landscape-left", UIApplication::landscapeLeft}};

void rotate(Arguments& words) {
  const Word word = words.word("portrait, landscape-left, landscape-right or upside-down");
  words.finish();
  const auto found = orientations.find(word.text);
  if (found == orientations.end())
    throw ScriptError(word.column,
                      "expected portrait, landscape-left, landscape-right or upside-down");
  UIApplication* application = stateOf<UIApplication>(UIApplication::sharedApplication());
  if (application == nullptr) throw ScriptError(0, "there is no application");
  Phone::current().journal.record("user rotate " + word.text);
  application->rotate(found->second);
}

}  // namespace

void addScreenViewCommands(CommandTable& table) {
  table.add({"tree", Stage::running, "tree TARGET",
             "tree UIApplication.sharedApplication.keyWindow",
             "Prints a view with all below it: class, frame, alpha and hidden where they are not "
             "the usual, the text of labels.",
             tree});
  table.add({"rotate", Stage::running, "rotate portrait|landscape-left|landscape-right|upside-down",
             "rotate landscape-left", "The user turns the phone, and the interface turns with it.",
             rotate});
}

}  // namespace sim
