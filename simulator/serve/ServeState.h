// What a served phone is, apart from the phone itself: it goes on through every restart of the
// process.
#pragma once

#include <filesystem>
#include <nlohmann/json_fwd.hpp>
#include <optional>
#include <string>
#include <vector>

#include "simulator/serve/Recording.h"

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
  int listener = -1;  // descriptor
  std::filesystem::path root;
  std::vector<std::filesystem::path> extensions;
  std::optional<std::filesystem::path> package;
  std::optional<std::filesystem::path> music;  // folder; none: nothing to play
  std::filesystem::path web;                   // folder
  std::filesystem::path folder;                // all that scripts may name lies below it

  std::string token;  // the secret that lets pages in
  std::string place;  // first part of the page's path, see Access.h
  std::string epoch;  // of this server
  long restarts = 0;  // of its process
  double speed = 1;
  bool paused = false;
  std::string audioPage;  // empty: none plays sound

  std::vector<std::string> setup;     // lines that pages have chosen
  std::vector<std::string> settings;  // `set` lines kept from the phone before
  Recording recording;
  std::optional<OpenScript> script;
  std::vector<Picture> pictures;  // in the order in which they were first written
};

nlohmann::json asJson(const ServeState& state);
// Throws nlohmann::json::exception when something is missing or of another type.
ServeState serveStateFrom(const nlohmann::json& saved);

// As pages see it, without its text.
nlohmann::json overview(const OpenScript& script);
nlohmann::json asJson(const std::vector<Picture>& pictures);

}  // namespace sim
