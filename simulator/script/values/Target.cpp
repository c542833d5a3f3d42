#include "simulator/script/values/Target.h"

#include <map>
#include <optional>

#include "objc/Message.h"
#include "simulator/foundation/KeyValueCoding.h"
#include "simulator/foundation/Unicode.h"
#include "simulator/foundation/Values.h"
#include "simulator/machine/NumberReader.h"
#include "simulator/script/Session.h"
#include "simulator/script/values/Invocation.h"
#include "simulator/standin/KnownNames.h"

namespace sim {
namespace {

const std::map<std::string_view, std::map<std::string_view, std::size_t>> structureMembers = {
    {"{CGPoint=dd}", {{"x", 0}, {"y", 1}}},
    {"{CGSize=dd}", {{"width", 0}, {"height", 1}}},
    {"{CGRect={CGPoint=dd}{CGSize=dd}}", {{"origin", 0}, {"size", 1}}},
    {"{UIEdgeInsets=dddd}", {{"top", 0}, {"left", 1}, {"bottom", 2}, {"right", 3}}},
};

std::string className(objc::Object object) {
  return object_isClass(object.get()) ? class_getName(reinterpret_cast<Class>(object.get()))
                                      : object_getClassName(object.get());
}

Value elementOf(objc::Object array, std::size_t index, std::size_t column) {
  const auto count = objc::send<unsigned long, "count">(array);
  if (index >= count)
    throw ScriptError(column, "expected an index below " + std::to_string(count) + ", found " +
                                  std::to_string(index));
  return Value::ofObject(
      objc::send<objc::Object, "objectAtIndex:">(array, static_cast<unsigned long>(index)));
}

Value memberOf(const Value& value, const std::string& name, std::size_t column) {
  if (const auto type = structureMembers.find(value.type().text); type != structureMembers.end()) {
    if (const auto member = type->second.find(name); member != type->second.end())
      return value.member(member->second);
  }
  throw ScriptError(column, "expected an object to ask for " + name + ", found " + notation(value));
}

Value stepInto(const Value& value, const std::string& name, std::size_t column) {
  if (!value.type().isObject()) return memberOf(value, name, column);
  const objc::Object object = value.object();
  if (!object) throw ScriptError(column, "expected an object to ask for " + name + ", found nil");
  if (const auto index = wholeNumber<std::size_t>(name); index && isKindOf(object, "NSArray"))
    return elementOf(object, *index, column);
  if (auto answer = sendIfKnown(object, name)) return *answer;
  if (hasValueForKey(object, name))
    return Value::ofObject(objc::send<objc::Object, "valueForKey:">(object, string(name)));
  throw ScriptError(column, className(object) + " does not answer " + name);
}

Value startOf(const std::string& name, std::size_t column) {
  if (name.starts_with('$')) return Session::current().variables.value(name.substr(1), column);
  const Class cls = objc_getClass(name.c_str());
  if (cls == nullptr) throw ScriptError(column, noSuchClass(name));
  return Value::ofObject(objc::Object(reinterpret_cast<id>(cls)));
}

}  // namespace

Value evaluateTarget(const Word& path) {
  const std::string_view text = path.text;
  if (path.quoted)
    throw ScriptError(path.column, "expected a class or a $variable, found a string");
  std::size_t end = std::min(text.find('.'), text.size());
  Value value = startOf(std::string(text.substr(0, end)), path.column);
  while (end < text.size()) {
    const std::size_t start = end + 1;
    end = std::min(text.find('.', start), text.size());
    const std::size_t column = path.column + unicode::characterCount(text.substr(0, start));
    if (start == end) throw ScriptError(column, "expected a name after the dot");
    value = stepInto(value, std::string(text.substr(start, end - start)), column);
  }
  return value;
}

Value evaluateTarget(Arguments& arguments) {
  return evaluateTarget(arguments.word("a class or a $variable"));
}

objc::Object targetObject(const Word& path) {
  const Value value = evaluateTarget(path);
  if (!value.object())
    throw ScriptError(path.column, path.text + ": expected an object, found " + notation(value));
  return objc::autorelease(objc::retain(value.object()));
}

objc::Object targetObject(Arguments& arguments) {
  return targetObject(arguments.word("a class or a $variable"));
}

}  // namespace sim
