// A night on the modelled phone: the host's life around the engine, and what people do.
#pragma once

#include "tests/model/Commands.h"
#include "tests/model/EngineModel.h"

namespace model {

class NightModel {
 public:
  explicit NightModel(const Rules& rules);

  // Does what the command says, with the deaths that are due; the lines of it are in phone.lines.
  void perform(const Action& action, const std::set<std::size_t>& deaths);

  // Where AdvanceToDue leads from here: never back, never beyond some minutes.
  Nanoseconds target(const AdvanceToDue& advance) const;

  EngineModel phone;

 private:
  struct Performer;

  void advanceTo(Nanoseconds until);
  void runUntil(Nanoseconds until);
  void launch();
  // The host died; it comes back at once.
  void comeBack();
  void restartAfter(int seconds);
  void run(const Entry& entry);

  std::optional<Nanoseconds> advanceUntil_;  // goes on after a death
};

}  // namespace model
