// What of a served phone, apart from the phone itself, goes on through every restart of its host.
#pragma once

#include <nlohmann/json_fwd.hpp>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace sim {

// A script that a page has opened, to be played step by step.
struct OpenScript {
  enum class State { ready, running, finished, failed };
  struct Failure {
    std::size_t line, column;
    std::string text;
  };

  std::string name, text;
  std::size_t line = 1;  // the next to be played, from 1
  State state = State::ready;
  std::optional<Failure> failure;
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
