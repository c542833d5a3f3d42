#include <stdexcept>

#include "simulator/machine/Journal.h"
#include "simulator/script/commands/PhoneCommands.h"
#include "simulator/script/names/NameChecks.h"
#include "simulator/script/values/Target.h"
#include "simulator/standin/KnownNames.h"

namespace sim {
namespace {

Class readClass(Arguments& arguments) {
  const Word& name = arguments.word("the name of a class");
  const Class cls = objc_getClass(name.text.c_str());
  if (cls == nullptr) throw ScriptError(name.column, noSuchClass(name.text));
  return cls;
}

void expectClass(Arguments& arguments) {
  const Class cls = readClass(arguments);
  if (arguments.atEnd()) return arguments.finish();
  const Word& wanted = arguments.word("the name of a superclass");
  arguments.finish();
  const Class superclass = class_getSuperclass(cls);
  const std::string found = superclass == nullptr ? "none" : class_getName(superclass);
  if (found != wanted.text)
    throw ScriptError(wanted.column, std::string("the superclass of ") + class_getName(cls) +
                                         ": expected " + wanted.text + ", found " + found);
}

void expectNoClass(Arguments& arguments) {
  const Word& name = arguments.word("the name of a class");
  arguments.finish();
  if (objc_getClass(name.text.c_str()) != nullptr)
    throw ScriptError(name.column, "expected no class " + name.text + ", found one");
  requireNoTypo("the class", name, classNames());
}

std::string normalized(const Word& types) {
  try {
    return normalizedTypes(types.text);
  } catch (const std::invalid_argument& error) {
    throw ScriptError(types.column, error.what());
  }
}

void expectType(Arguments& arguments) {
  const Class cls = readClass(arguments);
  const Word name = arguments.word("a selector");
  const Word types = arguments.word("an encoding such as \"v@:B\"");
  arguments.finish();
  const bool ofClass = name.text.starts_with('+');
  const SEL selector = sel_registerName(name.text.c_str() + (ofClass ? 1 : 0));
  const Method method =
      ofClass ? class_getClassMethod(cls, selector) : class_getInstanceMethod(cls, selector);
  if (method == nullptr)
    throw ScriptError(name.column,
                      std::string(class_getName(cls)) + " does not answer " + name.text);
  const std::string found = normalizedTypes(method_getTypeEncoding(method));
  if (found != normalized(types))
    throw ScriptError(types.column, "the type of " + name.text + ": expected " +
                                        sim::quoted(types.text) + ", found " + sim::quoted(found));
}

void expectProperty(Arguments& arguments) {
  const Class cls = readClass(arguments);
  const Word name = arguments.word("a property");
  const Word wanted = arguments.word("attributes such as \"TB,N\"");
  arguments.finish();
  const objc_property_t property = class_getProperty(cls, name.text.c_str());
  if (property == nullptr)
    throw ScriptError(name.column,
                      std::string(class_getName(cls)) + " has no property " + name.text);
  const std::string found = property_getAttributes(property);
  if (found != wanted.text)
    throw ScriptError(wanted.column, "the property " + name.text + ": expected " +
                                         sim::quoted(wanted.text) + ", found " +
                                         sim::quoted(found));
}

void expectResponds(Arguments& arguments) {
  const Word target = arguments.word("a class or a $variable");
  const Word name = arguments.word("a selector");
  const Word* answer = arguments.peek();
  const std::size_t column = answer == nullptr ? 0 : answer->column;
  const bool wanted = arguments.yesOrNo("an answer");
  arguments.finish();
  const objc::Object receiver = targetObject(target);
  const bool found = class_respondsToSelector(object_getClass(receiver.get()),
                                              sel_registerName(name.text.c_str()));
  if (!found) requireNoTypo("the selector", name, selectorNames());
  if (found != wanted)
    throw ScriptError(column, "responds to " + name.text + ": expected " + notation(wanted) +
                                  ", found " + notation(found));
}

}  // namespace

void addReflectionCommands(CommandTable& table) {
  table.add({"expect-class", Stage::running, "expect-class NAME [SUPERCLASS]",
             "expect-class UIButton UIControl",
             "Requires a class, and what it inherits from directly.", expectClass});
  table.add({"expect-no-class", Stage::running, "expect-no-class NAME",
             "expect-no-class NoSuchClass", "Requires that there is no class of that name.",
             expectNoClass});
  table.add({"expect-type", Stage::running, "expect-type CLASS SELECTOR ENCODING",
             "expect-type NSObject +alloc \"@@:\"",
             "Requires a method's type encoding, without frame offsets; `+` before the selector "
             "means a class method.",
             expectType});
  table.add({"expect-property", Stage::running, "expect-property CLASS NAME ATTRIBUTES",
             "expect-property UIView hidden \"TB,N\"", "Requires a declared property's attributes.",
             expectProperty});
  table.add({"expect-responds", Stage::running, "expect-responds TARGET SELECTOR YES|NO",
             "expect-responds NSUserDefaults.standardUserDefaults synchronize YES",
             "Requires that the object has, or lacks, a method of that name.", expectResponds});
}

}  // namespace sim
