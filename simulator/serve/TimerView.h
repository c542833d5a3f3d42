// The sleep timer, and what its end will do, as pages see it.
#pragma once

#include <nlohmann/json_fwd.hpp>

#include "objc/Object.h"

namespace sim {

class TimerView {
 public:
  // {mode: "duration"|"songs"|null, endsAt, songsLeft, endsWithSong, fades, atEnd: [...]};
  // `settings` are the values of all settings. Of the host and the extension only what cannot
  // change anything is asked; an extension that has not begun is not begun by it.
  nlohmann::json now(const nlohmann::json& settings);

 private:
  objc::Object engine();

  objc::Object engine_;       // made once and for ever in a host; nil until then
  std::size_t lookedAt_ = 0;  // lines of the journal
};

}  // namespace sim
