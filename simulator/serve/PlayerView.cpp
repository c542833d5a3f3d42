#include "simulator/serve/PlayerView.h"

#include <cmath>
#include <nlohmann/json.hpp>

#include "simulator/mediaremote/AudioSystem.h"
#include "simulator/mediaremote/Player.h"

namespace sim {

using nlohmann::json;

namespace {

// As people read it: 0.6, though no float is.
double rounded(float volume) {
  return std::round(double(volume) * 1e6) / 1e6;
}

json orNull(const std::string& text) {
  return text.empty() ? json() : json(text);
}

void describe(json& view, const Track* track, const MusicLibrary& library) {
  view["title"] = track != nullptr && track->title ? json(*track->title) : json();
  view["artist"] = track == nullptr ? json() : orNull(track->artist);
  view["album"] = track == nullptr ? json() : orNull(track->album);
  view["length"] = track == nullptr ? json() : json(seconds(track->length));
  view["file"] = track == nullptr ? json() : orNull(library.idOf(*track));
}

}  // namespace

json PlayerView::now() {
  const Player& player = Player::current();
  const Nanoseconds uptime = Phone::current().clock.uptime();
  const double position = player.position();
  Position present{player.isPlaying(), nanoseconds(position)};
  if (present.playing) present.anchor = uptime - present.anchor;
  if (!(present == known_)) {
    known_ = present;
    position_ = position;
    uptime_ = uptime;
  }
  json view = {{"application", player.application()},
               {"playing", present.playing},
               {"position", position_},
               {"at", seconds(uptime_)},
               {"volume", rounded(AudioSystem::current().volume())},
               {"route", AudioSystem::current().route().name}};
  describe(view, player.track(), library_);
  return view;
}

}  // namespace sim
