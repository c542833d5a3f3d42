// What a host that dies, or that is asked what it is doing, says of itself.
#pragma once

#include <array>
#include <cstddef>
#include <cstdio>

#include "simulator/machine/Clock.h"

namespace sim {

// Written as it lies in memory: whoever dies may allocate nothing. It is written twice, first
// without what takes more of a process that works: the last one that is whole counts.
struct CrashRecord {
  enum class Kind { crash, sample };
  struct Frame {
    const void* address;
    std::size_t offset;            // within the image
    std::array<char, 128> image;   // path; empty: in none
    std::array<char, 160> symbol;  // that the image exports, mangled; empty: none
    std::array<char, 120> method;  // "-[Class selector]"; empty: none
    bool isHook;                   // an extension's method in a class of the host
  };

  Kind kind;
  int signal;  // 0: none
  const void* address;
  Nanoseconds uptime, launchedAt;
  double wallAtZero;
  std::size_t line;               // of the script
  std::array<char, 1000> reason;  // empty: the signal says it
  std::size_t frameCount;
  std::array<Frame, 60> frames;  // innermost first; all of it fits twice into a pipe
};

// As much of the text as there is room for.
template <std::size_t size>
void copyText(std::array<char, size>& place, const char* text) {
  std::snprintf(place.data(), size, "%s", text);
}

}  // namespace sim
