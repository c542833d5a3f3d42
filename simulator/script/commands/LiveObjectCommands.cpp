// Which objects live: what is made must go, too.
#include <map>
#include <optional>
#include <string>

#include "simulator/machine/Phone.h"
#include "simulator/runtime/LiveObjects.h"
#include "simulator/script/Session.h"
#include "simulator/script/commands/PhoneCommands.h"
#include "simulator/standin/KnownNames.h"

namespace sim {
namespace {

using Counts = std::map<std::string, std::size_t>;

Counts counts() {
  Counts all;
  for (const auto& [cls, count] : sim::runtime::liveInstanceCounts())
    all[class_getName(cls)] += count;
  return all;
}

struct MarkedObjects {
  std::optional<Counts> counts;
};

std::optional<Counts>& marked() {
  return Phone::current().state<MarkedObjects>().counts;
}

std::size_t countOf(const Counts& all, const std::string& name) {
  const auto found = all.find(name);
  return found == all.end() ? 0 : found->second;
}

void expectLive(Arguments& words) {
  const Word name = words.word("the name of a class");
  const long expected = words.integer("a number of objects");
  words.finish();
  const Class cls = objc_getClass(name.text.c_str());
  if (cls == nullptr) throw ScriptError(name.column, noSuchClass(name.text));
  const std::size_t found = sim::runtime::liveInstanceCount(cls);
  if (found != std::size_t(expected))
    throw ScriptError(0, "live objects of " + name.text + ": expected " + std::to_string(expected) +
                             ", found " + std::to_string(found));
}

// The last value would keep its object.
void mark(Arguments& words) {
  words.finish();
  Session::current().last.reset();
  marked() = counts();
}

void expectNoNewObjects(Arguments& words) {
  words.finish();
  if (!marked()) throw ScriptError(0, "mark-objects comes first");
  Session::current().last.reset();
  std::string added;
  for (const auto& [name, count] : counts())
    if (const std::size_t before = countOf(*marked(), name); count > before)
      added += ' ' + std::to_string(count - before) + " of " + name;
  if (!added.empty()) throw ScriptError(0, "expected no new objects, found" + added);
}

}  // namespace

void addLiveObjectCommands(CommandTable& table) {
  table.add(
      {"expect-live", Stage::running, "expect-live CLASS N", "expect-live UIAlertController 0",
       "Requires that so many objects of exactly that class live, wherever they are.", expectLive});
  table.add({"mark-objects", Stage::running, "mark-objects", "mark-objects",
             "Counts all objects that live, for expect-no-new-objects.", mark});
  table.add({"expect-no-new-objects", Stage::running, "expect-no-new-objects",
             "expect-no-new-objects",
             "Requires that no class has more live objects than when mark-objects counted them.",
             expectNoNewObjects});
}

}  // namespace sim
