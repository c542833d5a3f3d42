// Journals what extensions do to the host's classes while they load.
#pragma once

#include "simulator/runtime/ClassChanges.h"

namespace sim {

// As long as it lives, if it is on. Lines such as
//   hook -[SpringBoard applicationDidFinishLaunching:]
//   method -[MRUNowPlayingHeaderView dozewellButton] "@@:"
//   property MRUNowPlayingHeaderView.dozewellButton "T@\"DozewellButton\",&,N"
//   class DozewellButton : MRUNowPlayingRoutingButton
class ClassJournal {
 public:
  explicit ClassJournal(bool on);
  ~ClassJournal();
  ClassJournal(const ClassJournal&) = delete;
  ClassJournal& operator=(const ClassJournal&) = delete;
};

// As long as it lives, nothing is journalled.
class ClassJournalPause {
 public:
  ClassJournalPause();
  ~ClassJournalPause();
  ClassJournalPause(const ClassJournalPause&) = delete;
  ClassJournalPause& operator=(const ClassJournalPause&) = delete;

 private:
  sim::runtime::ClassChangeObserver observer_;
};

}  // namespace sim
