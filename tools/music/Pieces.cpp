#include "tools/music/Pieces.h"

#include <array>
#include <cstddef>

#include "tools/music/Voices.h"

namespace music {
namespace {

constexpr const char* artist = "Corvane";
constexpr const char* album = "Three Lullabies";

using Chord = std::array<double, 4>;

void playChord(Sound& sound, const Chord& chord, double start, double duration) {
  for (std::size_t voice = 0; voice < chord.size(); ++voice)
    playPad(sound, {start, duration, chord[voice], 0.5, 0.2 + 0.2 * double(voice)});
}

void finish(Sound& sound) {
  sound.echo(0.37, 0.32);
  sound.fade(2.5, 5);
  sound.normalise(0.5);
}

// Slow chords that flow into each other.
Sound harbourLights() {
  static constexpr std::array<Chord, 6> chords = {{{48, 55, 64, 71},
                                                   {45, 52, 60, 67},
                                                   {41, 57, 60, 69},
                                                   {43, 55, 62, 71},
                                                   {45, 55, 60, 64},
                                                   {41, 53, 60, 67}}};
  constexpr double each = 7, overlap = 3;
  Sound sound(each * chords.size() + overlap);
  for (std::size_t index = 0; index < chords.size(); ++index)
    playChord(sound, chords[index], each * double(index), each + overlap);
  finish(sound);
  return sound;
}

// A broken chord, note by note, over a quiet pad.
Sound paperMoon() {
  static constexpr std::array<Chord, 4> chords = {
      {{62, 66, 69, 73}, {59, 62, 66, 69}, {55, 59, 62, 66}, {57, 61, 64, 69}}};
  static constexpr std::array<std::size_t, 8> order = {0, 1, 2, 3, 2, 1, 3, 2};
  constexpr double step = 0.5;
  constexpr double bar = step * order.size();
  constexpr std::size_t rounds = 3;
  Sound sound(bar * chords.size() * rounds + 4);
  for (std::size_t at = 0; at < chords.size() * rounds; ++at) {
    const Chord& chord = chords[at % chords.size()];
    const double start = bar * double(at);
    playPad(sound, {start, bar + 2, chord[0] - 12, 0.35, 0.5});
    for (std::size_t index = 0; index < order.size(); ++index)
      playBell(sound, {start + step * double(index), 3, chord[order[index]],
                       index == 0 ? 0.6 : 0.42, 0.25 + 0.5 * double(index) / order.size()});
  }
  finish(sound);
  return sound;
}

// Waves, and now and then a bell from the other shore.
Sound lowTide() {
  static constexpr std::array<double, 7> bells = {64, 71, 69, 62, 67, 64, 59};
  constexpr double between = 6.5;
  Sound sound(between * (bells.size() + 1));
  playWaves(sound, 3, 9);
  for (std::size_t index = 0; index < bells.size(); ++index) {
    const double start = 3 + between * double(index);
    playBell(sound, {start, 5, bells[index], 0.35, 0.3 + 0.4 * double(index % 2)});
    playPad(sound, {start, between + 2, bells[index] - 24, 0.3, 0.5});
  }
  finish(sound);
  return sound;
}

}  // namespace

std::vector<Piece> allPieces() {
  return {{"1 Harbour Lights", "Harbour Lights", artist, album, harbourLights()},
          {"2 Paper Moon", "Paper Moon", artist, album, paperMoon()},
          {"3 Low Tide", "Low Tide", artist, album, lowTide()}};
}

}  // namespace music
