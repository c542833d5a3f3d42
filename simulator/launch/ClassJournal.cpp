#include "simulator/launch/ClassJournal.h"

#include <string>

#include "simulator/machine/Phone.h"

namespace sim {
namespace {

using sim::runtime::ClassChange;

std::string methodName(const ClassChange& change) {
  return std::string(class_isMetaClass(change.cls) ? "+[" : "-[") + class_getName(change.cls) +
         ' ' + change.name + ']';
}

std::string line(const ClassChange& change) {
  switch (change.kind) {
    case ClassChange::Kind::classRegistered:
      return std::string("class ") + change.name + " : " +
             class_getName(class_getSuperclass(change.cls));
    case ClassChange::Kind::methodAdded:
      return "method " + methodName(change) + ' ' + quoted(change.types);
    case ClassChange::Kind::propertyAdded:
      return std::string("property ") + class_getName(change.cls) + '.' + change.name + ' ' +
             quoted(change.types);
    case ClassChange::Kind::methodHooked:
      return "hook " + methodName(change);
  }
  return {};
}

void record(const ClassChange& change) {
  Phone::current().journal.record(line(change));
}

}  // namespace

ClassJournal::ClassJournal(bool on) {
  if (on) sim::runtime::observeClassChanges(record);
}

ClassJournal::~ClassJournal() {
  sim::runtime::observeClassChanges(nullptr);
}

ClassJournalPause::ClassJournalPause() : observer_(sim::runtime::observeClassChanges(nullptr)) {}

ClassJournalPause::~ClassJournalPause() {
  sim::runtime::observeClassChanges(observer_);
}

}  // namespace sim
