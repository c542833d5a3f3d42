// The instruments.
#pragma once

#include "tools/music/Sound.h"

namespace music {

struct Note {
  double start = 0;     // seconds
  double duration = 0;  // seconds
  double pitch = 60;    // semitones, 60 is the middle C
  double loudness = 1;
  double place = 0.5;  // from left to right
};

// Swells and ebbs away over the whole note; slightly out of tune with itself.
void playPad(Sound& sound, const Note& note);
// Struck softly, then rings out.
void playBell(Sound& sound, const Note& note);
// Waves on a shore: filtered noise that comes and goes every `period` seconds.
void playWaves(Sound& sound, double loudness, double period);

}  // namespace music
