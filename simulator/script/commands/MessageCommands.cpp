#include "simulator/script/commands/MessageCommands.h"

#include <iostream>

#include "simulator/machine/NearestName.h"
#include "simulator/machine/WorkerThread.h"
#include "simulator/script/Session.h"
#include "simulator/script/commands/PhoneCommands.h"
#include "simulator/script/values/Invocation.h"
#include "simulator/script/values/Literal.h"
#include "simulator/script/values/Target.h"
#include "simulator/standin/KnownNames.h"

namespace sim {
namespace {

std::string receiverName(objc::Object receiver) {
  return object_isClass(receiver.get()) ? class_getName(reinterpret_cast<Class>(receiver.get()))
                                        : object_getClassName(receiver.get());
}

// A message, read whole before it is sent: sending may take place on another thread.
struct Message {
  objc::Object receiver;
  SEL selector;
  Signature signature;
  std::vector<Value> arguments;

  Value send() { return sendMessage(receiver, selector, signature, std::move(arguments)); }
};

Message readMessage(const Word& target, Arguments& arguments) {
  const objc::Object receiver = targetObject(target);
  const Word name = arguments.word("a selector");
  const SEL selector = sel_registerName(name.text.c_str());
  auto signature = methodSignature(receiver, selector);
  if (!signature)
    throw ScriptError(name.column,
                      receiverName(receiver) + " does not answer " + name.text +
                          didYouMean(name.text, selectorNames(receiverName(receiver),
                                                              object_isClass(receiver.get()))));
  std::vector<Value> values = readArguments(arguments, *signature);
  return {receiver, selector, std::move(*signature), std::move(values)};
}

void send(Arguments& arguments) {
  const Word target = arguments.word("a class or a $variable");
  Session::current().last = readMessage(target, arguments).send();
}

void background(Arguments& arguments) {
  if (!arguments.takeKeyword("send")) arguments.failHere("expected send");
  Message message = readMessage(arguments.word("a class or a $variable"), arguments);
  runOnWorkerThread([&message] { Session::current().last = message.send(); });
}

void get(Arguments& arguments) {
  Value value = evaluateTarget(arguments);
  arguments.finish();
  std::cout << notation(value) << '\n';
  Session::current().last = std::move(value);
}

Value readValue(Arguments& arguments) {
  if (arguments.takeKeyword("call")) return readCall(arguments);
  const Word path = arguments.word("a class or a $variable");
  if (!arguments.atEnd()) return readMessage(path, arguments).send();
  arguments.finish();
  return evaluateTarget(path);
}

void let(Arguments& arguments) {
  const Word name = arguments.word("a variable's name");
  if (name.text.empty() || name.text.find_first_of("$. ") != std::string::npos)
    throw ScriptError(name.column, "expected a name without $ and dots, found " + name.text);
  Session::current().variables.keep(name.text, readValue(arguments));
}

}  // namespace

std::vector<Value> readArguments(Arguments& arguments, const Signature& signature) {
  std::vector<Value> values;
  for (const TypeEncoding& type : signature.arguments)
    values.push_back(
        converted(readLiteral(arguments, "argument " + std::to_string(values.size() + 1)), type));
  arguments.finish();
  return values;
}

void addMessageCommands(CommandTable& table) {
  table.add({"send", Stage::running, "send TARGET SELECTOR [ARGUMENTS…]",
             "send NSUserDefaults.standardUserDefaults setInteger:forKey: 3 \"tracks\"",
             "Sends a message; its result is the last value.", send});
  table.add({"background", Stage::running, "background send TARGET SELECTOR [ARGUMENTS…]",
             "background send NSUserDefaults.standardUserDefaults synchronize",
             "Sends a message on another thread and waits for its end.", background});
  table.add({"get", Stage::running, "get TARGET", "get UIDevice.currentDevice.systemVersion",
             "Prints a value; it is the last value, too.", get});
  table.add({"let", Stage::running,
             "let NAME TARGET [SELECTOR ARGUMENTS…]|call FUNCTION [ARGUMENTS…]",
             "let defaults NSUserDefaults.standardUserDefaults",
             "Keeps a value, or the result of a message or a call, under $NAME; objects are kept "
             "alive.",
             let});
}

}  // namespace sim
