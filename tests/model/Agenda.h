// What will happen on the modelled phone, ordered by due time and then by arrival.
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <vector>

namespace model {

using Nanoseconds = std::int64_t;
inline constexpr Nanoseconds second = 1'000'000'000;
inline constexpr Nanoseconds never = std::numeric_limits<Nanoseconds>::max();

enum class Event {
  trackEnds,
  mediaAnnounced,  // the host posts that something else plays
  titleRead,       // the engine gets the information that it asked for
  settingsArrive,  // what was written to the preferences domain holds
  restore,         // the task of the launch
  timerFires,      // a host timer, current or stale
  timerDidFire,    // and calls the engine, one turn later
  fadeStep,
  volumeRestored,   // two seconds after the pause
  indicatorAllowed  // suppression of the volume indicator ends
};

struct Entry {
  Nanoseconds due = 0;
  Event event = Event::restore;
  std::size_t timer = 0;  // timerFires
  float decrement = 0;    // fadeStep
  std::uint64_t arrival = 0;
};

// Values all the way: a copy of the agenda is another future.
class Agenda {
 public:
  void add(Entry entry) {
    entry.arrival = ++arrivals_;
    entries_.push_back(entry);
  }
  void remove(Event event, std::size_t timer = 0) {
    std::erase_if(entries_,
                  [=](const Entry& entry) { return entry.event == event && entry.timer == timer; });
  }
  void clear() { entries_.clear(); }

  std::optional<Entry> takeDue(Nanoseconds until);
  // Due times to come, in order, without repetition.
  std::vector<Nanoseconds> dueTimes() const;

 private:
  std::vector<Entry> entries_;
  std::uint64_t arrivals_ = 0;
};

}  // namespace model
