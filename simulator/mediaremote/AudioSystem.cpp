#include "simulator/mediaremote/AudioSystem.h"

#include <nlohmann/json.hpp>

#include "simulator/machine/Phone.h"

namespace sim {
namespace {

constexpr float volumeOfANewPhone = 0.5F;

// Written so that not-a-number, too, gives a level.
float held(float level) {
  if (!(level > 0)) return 0;
  return level < 1 ? level : 1;
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
  const float before = volume(category);
  const float after = held(level);
  volumes_.insert_or_assign(std::string(category), after);
  if (after == before) return;
  if (!indicatorSuppressed_) phone_.journal.record("HUD volume " + notation(after));
  if (category != mediaCategory) return;
  const auto now = observers_;  // one of them may forget another
  for (const auto& [number, observer] : now) observer();
}

long AudioSystem::observe(std::function<void()> observer) {
  observers_.emplace(++lastObserver_, std::move(observer));
  return lastObserver_;
}

nlohmann::json AudioSystem::save() const {
  auto saved = nlohmann::json::object();
  for (const auto& [category, level] : volumes_) saved[category] = level;
  return saved;
}

void AudioSystem::restore(const nlohmann::json& saved) {
  volumes_.clear();
  for (const auto& [category, level] : saved.items()) volumes_[category] = level.get<float>();
}

}  // namespace sim
