#include "tools/music/Voices.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <numbers>

namespace music {
namespace {

constexpr double turn = 2 * std::numbers::pi;

double frequency(double pitch) {
  return 440 * std::pow(2, (pitch - 69) / 12);
}

struct Partial {
  double ratio, loudness;
};

// The same everywhere and every time, unlike the library's distributions.
class Noise {
 public:
  double next() {
    state_ = state_ * 6364136223846793005U + 1442695040888963407U;
    return double(std::int32_t(state_ >> 32)) / 2147483648.0;
  }

 private:
  std::uint64_t state_ = 1;
};

template <class Voice>
void play(Sound& sound, const Note& note, Voice voice) {
  const auto first = std::size_t(note.start * Sound::rate);
  const auto count = std::size_t(note.duration * Sound::rate);
  for (std::size_t at = 0; at < count; ++at)
    sound.add(first + at, note.loudness * voice(double(at) / Sound::rate), note.place);
}

}  // namespace

void playPad(Sound& sound, const Note& note) {
  static constexpr std::array<Partial, 5> partials = {
      {{1, 1}, {1.003, 0.8}, {0.997, 0.8}, {2, 0.22}, {3.001, 0.07}}};
  const double base = turn * frequency(note.pitch);
  play(sound, note, [&note, base](double now) {
    const double swell = std::sin(std::numbers::pi * now / note.duration);
    double value = 0;
    for (const Partial& each : partials) value += each.loudness * std::sin(base * each.ratio * now);
    return value * swell * swell;
  });
}

void playBell(Sound& sound, const Note& note) {
  static constexpr std::array<Partial, 4> partials = {
      {{1, 1}, {2, 0.35}, {3.01, 0.12}, {4.2, 0.05}}};
  constexpr double attack = 0.012, release = 0.05;
  const double base = turn * frequency(note.pitch);
  play(sound, note, [&note, base](double now) {
    const double ends = std::min({now / attack, (note.duration - now) / release, 1.0});
    double value = 0;
    // Higher ones die away sooner.
    for (const Partial& each : partials)
      value +=
          each.loudness * std::exp(-now * (0.9 + each.ratio)) * std::sin(base * each.ratio * now);
    return value * ends;
  });
}

void playWaves(Sound& sound, double loudness, double period) {
  Noise noise;
  std::array<double, 2> low{}, lower{};
  for (std::size_t at = 0; at < sound.length(); ++at) {
    const double phase = turn * double(at) / Sound::rate / period;
    const double swell = 0.35 + 0.65 * std::pow(0.5 - 0.5 * std::cos(phase), 2);
    const double openness = 0.02 + 0.05 * swell;
    for (std::size_t side = 0; side < 2; ++side) {
      low[side] += openness * (noise.next() - low[side]);
      lower[side] += openness * (low[side] - lower[side]);
      sound.add(at, loudness * swell * lower[side], double(side));
    }
  }
}

}  // namespace music
