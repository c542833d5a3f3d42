#include <stdexcept>

#include "simulator/script/Session.h"
#include "simulator/script/commands/MessageCommands.h"
#include "simulator/script/commands/PhoneCommands.h"
#include "simulator/script/values/Invocation.h"
#include "simulator/script/values/Literal.h"
#include "simulator/script/values/Pointers.h"

namespace sim {
namespace {

Host::Symbol exportedSymbol(const Word& name) {
  const auto found = Session::current().host.symbol(name.text.c_str());
  if (!found) throw ScriptError(name.column, "no loaded extension exports " + name.text);
  return *found;
}

void* exportedFunction(const Word& name) {
  const Host::Symbol symbol = exportedSymbol(name);
  if (symbol.kind != Host::Symbol::Kind::function)
    throw ScriptError(name.column, "expected a function, " + name.text + " is none");
  return symbol.address;
}

const void* exportedVariable(const Word& name, const TypeEncoding& type) {
  const Host::Symbol symbol = exportedSymbol(name);
  if (symbol.kind != Host::Symbol::Kind::variable)
    throw ScriptError(name.column, "expected a variable, " + name.text + " is none");
  // Sanitizers make variables larger than they are.
  if (symbol.size < type.size())
    throw ScriptError(name.column, name.text + " has fewer bytes than the type " + type.text);
  return symbol.address;
}

void call(Arguments& arguments) {
  Session::current().last = readCall(arguments);
}

void declare(Arguments& arguments) {
  const std::string name = arguments.text("a function");
  const Word types = arguments.word("an encoding such as \"@i\"");
  arguments.finish();
  try {
    Session::current().functions.declare(name, types.text);
  } catch (const std::invalid_argument& error) {
    throw ScriptError(types.column, error.what());
  }
}

TypeEncoding readType(Arguments& arguments) {
  const Word& word = arguments.word("an encoding such as B");
  try {
    return parseType(word.text);
  } catch (const std::invalid_argument& error) {
    throw ScriptError(word.column, error.what());
  }
}

void expectVariable(Arguments& arguments) {
  const Word name = arguments.word("an exported variable");
  const std::size_t typeColumn = arguments.atEnd() ? 0 : arguments.peek()->column;
  const TypeEncoding type = readType(arguments);
  const Literal expected = readLiteral(arguments, "a value");
  const double tolerance = readTolerance(arguments);
  arguments.finish();
  Value found(type);
  std::memcpy(found.bytes(), exportedVariable(name, type), type.size());
  if (!hasPlausiblePointers(type, found.bytes()))
    throw ScriptError(typeColumn, name.text + " holds no value of the type " + type.text);
  found.keepObject();
  requireMatch(found, expected, tolerance, name.text);
}

}  // namespace

Value readCall(Arguments& arguments) {
  const Word name = arguments.word("a function");
  void* function = exportedFunction(name);
  const std::string* types = Session::current().functions.types(name.text);
  if (types == nullptr)
    throw ScriptError(name.column, "the types of " + name.text + " are not known: declare them");
  const Signature signature = parseFunctionTypes(*types);
  return callFunction(function, signature, readArguments(arguments, signature));
}

void addFunctionCommands(CommandTable& table) {
  table.add({"call", Stage::running, "call FUNCTION [ARGUMENTS…]", "call timeFormatted 3725",
             "Calls a C function that an extension itself exports; its result is the last value.",
             call});
  table.add(
      {"declare", Stage::any, "declare FUNCTION ENCODING", "declare timeFormatted \"@i\"",
       "Says what a function gives and takes, for `call`: result and arguments. Types that are "
       "known already cannot be changed.",
       declare});
  table.add({"expect-variable", Stage::running,
             "expect-variable NAME ENCODING VALUE [within TOLERANCE]",
             "expect-variable shouldReplaceRoutingActionByDozewell B NO",
             "Requires the value of a variable that an extension exports.", expectVariable});
}

}  // namespace sim
