#include "simulator/script/Session.h"
#include "simulator/script/commands/PhoneCommands.h"
#include "simulator/script/values/Literal.h"
#include "simulator/script/values/Target.h"

namespace sim {
namespace {

void expect(Arguments& arguments) {
  const Word path = arguments.word("a class or a $variable");
  const Literal expected = readLiteral(arguments, "a value");
  const double tolerance = readTolerance(arguments);
  arguments.finish();
  requireMatch(evaluateTarget(path), expected, tolerance, path.text);
}

void expectNot(Arguments& arguments) {
  const Word path = arguments.word("a class or a $variable");
  const Literal unwanted = readLiteral(arguments, "a value");
  arguments.finish();
  if (matches(evaluateTarget(path), unwanted, 0))
    throw ScriptError(unwanted.column,
                      path.text + ": expected anything but " + unwanted.written + ", found it");
}

void expectLast(Arguments& arguments) {
  const auto& last = Session::current().last;
  if (!last) throw ScriptError(0, "there is no last value: send, call or get comes first");
  const Literal expected = readLiteral(arguments, "a value");
  const double tolerance = readTolerance(arguments);
  arguments.finish();
  requireMatch(*last, expected, tolerance, "the last value");
}

}  // namespace

void addExpectCommands(CommandTable& table) {
  table.add({"expect", Stage::running, "expect TARGET VALUE [within TOLERANCE]",
             "expect UIDevice.currentDevice.systemVersion \"15.4\"",
             "Requires a value; numbers may differ by the tolerance.", expect});
  table.add({"expect-not", Stage::running, "expect-not TARGET VALUE",
             "expect-not NSUserDefaults.standardUserDefaults nil",
             "Requires any value but this one.", expectNot});
  table.add({"expect-last", Stage::running, "expect-last VALUE [within TOLERANCE]",
             "expect-last \"01:02:05\"", "Requires the value of the last send, call or get.",
             expectLast});
}

}  // namespace sim
