#include "tools/music/Sound.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace music {

Sound::Sound(double seconds) : samples_(std::size_t(seconds * rate) * channels) {}

void Sound::add(std::size_t at, double value, double place) {
  if (at >= length()) return;
  // Equal power: a sound in the middle is as loud as one at a side.
  const double angle = place * std::numbers::pi / 2;
  samples_[at * channels] += value * std::cos(angle);
  samples_[at * channels + 1] += value * std::sin(angle);
}

void Sound::echo(double delay, double feedback) {
  const auto distance = std::size_t(delay * rate) * channels;
  for (std::size_t at = distance; at < samples_.size(); ++at) {
    const std::size_t otherSide = (at - distance) ^ 1;
    samples_[at] += feedback * samples_[otherSide];
  }
}

void Sound::fade(double in, double out) {
  const double end = seconds();
  for (std::size_t at = 0; at < length(); ++at) {
    const double now = double(at) / rate;
    const double level = std::clamp(std::min(now / in, (end - now) / out), 0.0, 1.0);
    // Rounded at both ends of the ramp.
    const double smooth = level * level * (3 - 2 * level);
    samples_[at * channels] *= smooth;
    samples_[at * channels + 1] *= smooth;
  }
}

void Sound::normalise(double peak) {
  double loudest = 0;
  for (const double sample : samples_) loudest = std::max(loudest, std::abs(sample));
  if (loudest == 0) return;
  for (double& sample : samples_) sample *= peak / loudest;
}

}  // namespace music
