// Journals what extensions do to the host's classes while they load.
#pragma once

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

}  // namespace sim
