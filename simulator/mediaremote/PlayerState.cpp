// What of the player outlives the host: all of it. Times are uptimes, so a track that was playing
// is, after a restart, where it would be without one; tracks that ended meanwhile end as soon as
// the main queue runs again.
#include <nlohmann/json.hpp>

#include "simulator/mediaremote/Player.h"

namespace sim {

static nlohmann::json saved(const Track& track) {
  return {{"title", track.title ? nlohmann::json(*track.title) : nlohmann::json()},
          {"hasNumberForTitle", track.hasNumberForTitle},
          {"artist", track.artist},
          {"album", track.album},
          {"length", track.length}};
}

static Track restored(const nlohmann::json& saved) {
  Track track;
  if (const auto& title = saved.at("title"); !title.is_null())
    track.title = title.get<std::string>();
  track.hasNumberForTitle = saved.at("hasNumberForTitle").get<bool>();
  track.artist = saved.at("artist").get<std::string>();
  track.album = saved.at("album").get<std::string>();
  track.length = saved.at("length").get<Nanoseconds>();
  return track;
}

nlohmann::json Player::save() const {
  auto tracks = nlohmann::json::array();
  for (const Track& each : tracks_) tracks.push_back(saved(each));
  nlohmann::json state = {
      {"application", application_}, {"tracks", std::move(tracks)}, {"playing", playing_},
      {"repeatsOne", repeatsOne_},   {"repeatsAll", repeatsAll_},   {"waitsForBoot", waitsForBoot_},
      {"startedAt", startedAt_},     {"pausedAt", pausedAt_},       {"index", nullptr}};
  if (track() != nullptr) state["index"] = index_;
  return state;
}

void Player::restore(const nlohmann::json& state) {
  state.at("application").get_to(application_);
  tracks_.clear();
  for (const auto& each : state.at("tracks")) tracks_.push_back(restored(each));
  const auto& index = state.at("index");
  index_ = index.is_null() ? nothing : index.get<std::size_t>();
  playing_ = state.at("playing").get<bool>();
  repeatsOne_ = state.at("repeatsOne").get<bool>();
  repeatsAll_ = state.at("repeatsAll").get<bool>();
  waitsForBoot_ = state.at("waitsForBoot").get<bool>();
  startedAt_ = state.at("startedAt").get<Nanoseconds>();
  pausedAt_ = state.at("pausedAt").get<Nanoseconds>();
  scheduleEnd();
  if (booted_) hostDidBoot();
}

}  // namespace sim
