#include "simulator/mediaremote/AudioSystem.h"

#include <cmath>
#include <nlohmann/json.hpp>
#include <utility>

#include "simulator/machine/Phone.h"

namespace sim {
namespace {

constexpr float volumeOfANewPhone = 0.5F;

// Written so that not-a-number, too, gives a level.
float held(float level) {
  if (!(level > 0)) return 0;
  return level < 1 ? level : 1;
}

float nearestStep(float level, int steps) {
  if (steps == 0) return level;
  const auto all = float(steps);
  return std::round(level * all) / all;
}

}  // namespace

AudioSystem::AudioSystem(Phone& phone) : phone_(phone) {
  phone.survives("audio", {[this] { return save(); },
                           [this](const nlohmann::json& saved) { restore(saved); }});
}

AudioSystem& AudioSystem::current() {
  return Phone::current().state<AudioSystem>();
}

float AudioSystem::volume(std::string_view category) const {
  const auto found = volumes_.find(category);
  return found == volumes_.end() ? volumeOfANewPhone : found->second;
}

void AudioSystem::setVolume(float level, std::string_view category) {
  if (store(level, category)) announce(category);
}

void AudioSystem::slideVolume(float level) {
  const bool wasSuppressed = std::exchange(indicatorSuppressed_, true);
  setVolume(level);
  indicatorSuppressed_ = wasSuppressed;
}

void AudioSystem::write(float level, std::string_view category) {
  if (!store(level, category)) return;
  phone_.queue.addNow([this, category = std::string(category)] { announce(category); });
}

bool AudioSystem::store(float level, std::string_view category) {
  const float before = volume(category);
  float after = held(level);
  if (category == mediaCategory) after = nearestStep(after, route_.steps);
  volumes_.insert_or_assign(std::string(category), after);
  return after != before;
}

void AudioSystem::announce(std::string_view category) {
  const bool isMedia = category == mediaCategory;
  if (!isMedia || !indicatorSuppressed_)
    phone_.journal.record("HUD volume " + notation(volume(category)));
  if (!isMedia) return;
  tellObservers();
}

void AudioSystem::setRoute(AudioRoute route) {
  route_ = std::move(route);
  store(volume(), mediaCategory);
}

nlohmann::json AudioSystem::save() const {
  auto volumes = nlohmann::json::object();
  for (const auto& [category, level] : volumes_) volumes[category] = level;
  return {{"volumes", std::move(volumes)}, {"route", route_.name}, {"steps", route_.steps}};
}

void AudioSystem::restore(const nlohmann::json& saved) {
  volumes_.clear();
  for (const auto& [category, level] : saved.at("volumes").items())
    volumes_[category] = level.get<float>();
  route_ = {saved.at("route").get<std::string>(), saved.at("steps").get<int>()};
}

}  // namespace sim
