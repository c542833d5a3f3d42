// What of a served phone, apart from the phone itself, goes on through every restart of its host.
#pragma once

#include <nlohmann/json_fwd.hpp>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "simulator/machine/Clock.h"

namespace sim {

// A script that a page has opened, to be played step by step.
struct OpenScript {
  enum class State { ready, running, finished, failed };
  // A moment to be reached from the start, before the phone is shown. Of the three one is given,
  // and a line maybe with an uptime.
  struct Goal {
    std::optional<std::size_t> line;    // just before it
    std::optional<Nanoseconds> uptime;  // without a line: after all that was done by then
    std::optional<std::size_t> entry;   // of the journal, from 1: just before what writes it
  };
  struct Failure {
    std::size_t line, column;
    std::string text;
  };

  std::string name, text;
  std::size_t line = 1;  // the next to be played, from 1
  State state = State::ready;
  std::optional<Failure> failure;
  std::string remainder;     // of the next line, of which time has passed a part; or empty
  std::optional<Goal> goal;  // state: running
  Nanoseconds end = 0;       // the latest uptime that is known of it
  // Where something else was done to the phone: from then on its lines are not all that was.
  std::optional<Nanoseconds> leftAt;
  std::size_t leftEntries = 0;  // of the journal, by then
};

// What a script has written into the session's folder.
struct Picture {
  std::string name;
  long number = 0;  // greater than that of any written before
};

struct ServeState {
  double speed = 1;
  bool paused = false;
  std::optional<OpenScript> script;
  std::vector<Picture> pictures;  // in the order in which they were first written
};

nlohmann::json asJson(const ServeState& state);
// Throws nlohmann::json::exception when something is missing or of another type.
ServeState serveStateFrom(const nlohmann::json& saved);

// Of a script, without their breaks.
std::vector<std::string> linesOf(std::string_view script);

// As pages see it, without its text.
nlohmann::json overview(const OpenScript& script);
nlohmann::json asJson(const std::vector<Picture>& pictures);

}  // namespace sim
