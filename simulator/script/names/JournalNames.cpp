#include "simulator/script/names/JournalNames.h"

#include <algorithm>
#include <cctype>
#include <string>
#include <string_view>
#include <utility>

#include "objc/runtime.h"
#include "simulator/machine/NearestName.h"
#include "simulator/machine/Phone.h"
#include "simulator/script/names/NameChecks.h"
#include "simulator/standin/Fidelity.h"
#include "simulator/standin/KnownNames.h"

namespace sim {
namespace {

// "setVolume:forCategory:" has the parts "setVolume:" and "forCategory:".
Names partsOfSelector(std::string_view selector) {
  Names parts;
  while (!selector.empty()) {
    const std::size_t colon = selector.find(':');
    const std::size_t length = colon == std::string_view::npos ? selector.size() : colon + 1;
    parts.emplace_back(selector.substr(0, length));
    selector.remove_prefix(length);
  }
  return parts;
}

bool isNameLetter(char letter) {
  return std::isalnum(static_cast<unsigned char>(letter)) != 0 || letter == '_' || letter == '$';
}

std::string_view nameAt(std::string_view text, std::size_t start) {
  std::size_t end = start;
  while (end < text.size() && isNameLetter(text[end])) ++end;
  return text.substr(start, end - start);
}

// The parts behind the first argument: names with a colon after a blank, outside of quotes. What
// follows the word "selector" is an argument.
Names laterParts(std::string_view arguments) {
  Names parts;
  bool inQuotes = false;
  for (std::size_t at = 0; at < arguments.size(); ++at) {
    if (arguments[at] == '\\')
      ++at;
    else if (arguments[at] == '"')
      inQuotes = !inQuotes;
    if (inQuotes || at >= arguments.size() || arguments[at] != ' ') continue;
    const std::string_view name = nameAt(arguments, at + 1);
    const bool isPart = !name.empty() && std::isdigit(static_cast<unsigned char>(name[0])) == 0 &&
                        arguments.substr(at + 1 + name.size()).starts_with(':');
    if (isPart && !arguments.substr(0, at).ends_with("selector"))
      parts.push_back(std::string(name) + ':');
  }
  return parts;
}

bool startsAny(const Names& names, std::string_view start) {
  return std::any_of(names.begin(), names.end(),
                     [start](const std::string& name) { return name.starts_with(start); });
}

void keepUnique(Names& names) {
  std::sort(names.begin(), names.end());
  names.erase(std::unique(names.begin(), names.end()), names.end());
}

void add(Names& names, Names others) {
  for (std::string& other : others) names.push_back(std::move(other));
}

// One method in a journal line: what stands between its brackets.
struct WrittenMethod {
  std::size_t column;
  bool ofClass;
  std::string cls;        // up to a *
  bool wholeClass;        // no * in it
  std::string arguments;  // from the selector on
};

[[noreturn]] void refuseSelector(const WrittenMethod& method, const std::string& written,
                                 const Names& known) {
  throw ScriptError(method.column, std::string("there is no method ") +
                                       (method.ofClass ? "+[" : "-[") + method.cls +
                                       (method.wholeClass ? " " : "* ") + written + ']' +
                                       didYouMean(written, known));
}

void requireClass(const WrittenMethod& method) {
  if (method.wholeClass && (isKnownClass(method.cls) || isNamedByExtension(method.cls))) return;
  Names known = classNames();
  add(known, extensionNames());
  if (!method.wholeClass && startsAny(known, method.cls)) return;
  throw ScriptError(method.column, "there is no class " + method.cls +
                                       (method.wholeClass ? "" : "*") +
                                       didYouMean(method.cls, known));
}

// All the parts must be of one selector, those after the first in any number: the journal leaves
// out arguments that only give something back.
void requireParts(const WrittenMethod& method, const std::string& first, Names selectors) {
  Names firsts;
  for (const std::string& each : selectors) firsts.push_back(partsOfSelector(each).front());
  if (std::find(firsts.begin(), firsts.end(), first) == firsts.end())
    refuseSelector(method, first, firsts);
  std::erase_if(selectors, [&first](const std::string& each) { return !each.starts_with(first); });
  for (const std::string& part : laterParts(method.arguments)) {
    Names others;
    for (const std::string& each : selectors) add(others, partsOfSelector(each));
    std::erase_if(selectors, [&part](const std::string& each) {
      const Names parts = partsOfSelector(each);
      return std::find(parts.begin(), parts.end(), part) == parts.end();
    });
    if (selectors.empty()) refuseSelector(method, first + part, others);
  }
}

// `name` is the selector, or its first part; `next` follows it.
void requireAmong(Names known, const WrittenMethod& method, const std::string& name, char next) {
  keepUnique(known);
  if (next == ':') return requireParts(method, name + ':', known);
  const bool found =
      next == '*' ? startsAny(known, name) : std::binary_search(known.begin(), known.end(), name);
  if (!found) refuseSelector(method, name, known);
}

void requireSelector(const WrittenMethod& method) {
  const std::string name(nameAt(method.arguments, 0));
  const char next = name.size() < method.arguments.size() ? method.arguments[name.size()] : '*';
  if (name.empty() && next != ':') return;  // "*": any
  // What a class inherits that this phone lacks cannot be known; of one that is not installed, such
  // as the shortcut runner's, nothing can.
  const bool isHere = method.wholeClass && objc_lookUpClass(method.cls.c_str()) != nullptr;
  const bool isStandIn = method.wholeClass && standIns().contains(method.cls);
  if (!isHere && isStandIn && standInMembers(method.cls).empty()) return;
  Names known = isHere ? selectorNames(method.cls, method.ofClass) : selectorNames();
  known.emplace_back("fire");  // the journal's word for the end of a PCSimpleTimer
  try {
    return requireAmong(known, method, name, next);
  } catch (const ScriptError&) {
    // Few methods are left to be found among the extensions' ten thousand texts.
  }
  add(known, extensionNames());
  requireAmong(known, method, name, next);
}

// `text` follows the bracket.
WrittenMethod writtenMethod(std::string_view text, std::size_t column, bool ofClass) {
  const std::size_t end = std::min(text.find_first_of(" ]*"), text.size());
  WrittenMethod method{column, ofClass, std::string(text.substr(0, end)), true, ""};
  text.remove_prefix(end);
  if (text.empty() || text.front() == '*') method.wholeClass = false;
  if (text.starts_with('*')) text.remove_prefix(1);
  if (text.starts_with(' ')) method.arguments = text.substr(1);
  return method;
}

void requireMethod(const WrittenMethod& method) {
  requireClass(method);
  // Behind "Cla*" the name that follows may be a later part, or an argument.
  if (method.wholeClass || method.cls.empty()) requireSelector(method);
}

Names functionsAndConstants() {
  Names names;
  for (const FidelityRecord& record : fidelityRecords())
    if (record.kind == 'f') names.push_back(record.name);
  return names;
}

void requireFunction(const std::string& name, std::size_t column) {
  const Names known = functionsAndConstants();
  if (std::find(known.begin(), known.end(), name) == known.end())
    throw ScriptError(column, "there is no function " + name + didYouMean(name, known));
}

void requireKnown(const Word& line) {
  constexpr std::string_view post = "post \"";
  std::string_view text = line.text;
  if (text.starts_with(post)) {
    text.remove_prefix(post.size());
    const std::size_t end = text.find_first_of("\"*");
    if (end != std::string_view::npos && text[end] == '"')
      requireNoTypo("the notification", {std::string(text.substr(0, end)), true, line.column},
                    functionsAndConstants());
    return;
  }
  for (const std::string_view kind : {"call ", "stub ", "hook ", "method "})
    if (text.starts_with(kind)) text.remove_prefix(kind.size());
  if (text.starts_with("-[") || text.starts_with("+["))
    return requireMethod(writtenMethod(text.substr(2), line.column, text.front() == '+'));
  const std::string name(nameAt(text, 0));
  if (!name.empty() && text.substr(name.size()).starts_with('('))
    requireFunction(name, line.column);
}

}  // namespace

void requireKnownNames(const Word& journalLine) {
  nameChecks().all.add([journalLine] { requireKnown(journalLine); });
}

}  // namespace sim
