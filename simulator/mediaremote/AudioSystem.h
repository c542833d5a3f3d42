// The phone's sound output: volumes by category, and the indicator that shows their changes.
#pragma once

#include <map>
#include <nlohmann/json_fwd.hpp>
#include <string>
#include <string_view>

#include "simulator/machine/Observed.h"
#include "simulator/machine/Phone.h"

namespace sim {

// The category of music and films.
inline constexpr std::string_view mediaCategory = "Audio/Video";

// Where the sound goes.
struct AudioRoute {
  std::string name = "iPhone";
  int steps = 0;  // from silent to full; a volume lies on one of them. 0: any volume
};

// Its observers are told of every change of the media volume.
class AudioSystem : public Observed {
 public:
  explicit AudioSystem(Phone& phone);
  AudioSystem(const AudioSystem&) = delete;
  AudioSystem& operator=(const AudioSystem&) = delete;

  // The sound of Phone::current(), made on first use. The volumes survive a restart of the host;
  // the suppression of the indicator does not, because it is the host that draws it.
  static AudioSystem& current();

  // From 0 (silent) to 1 (full). A category that nobody has set is at half volume.
  float volume(std::string_view category = mediaCategory) const;
  // Held to 0..1; not-a-number counts as 0. The media volume goes to the nearest step of the route.
  // A change shows the indicator unless suppressed.
  void setVolume(float level, std::string_view category = mediaCategory);
  // By a slider: whoever drags it sees the volume there and needs no indicator.
  void slideVolume(float level);
  // As the host's own writes, which a queue of the sound's process carries out one after the other:
  // a volume read afterwards waits for them, and so sees them at once, but the host hears of a
  // change only when its main queue comes to it.
  void write(float level, std::string_view category);

  const AudioRoute& route() const { return route_; }
  // The media volume stays as near as the route allows, and nobody is told of the difference.
  void setRoute(AudioRoute route);

  // Of changes of the media volume.
  bool isIndicatorSuppressed() const { return indicatorSuppressed_; }
  void setIndicatorSuppressed(bool suppressed) { indicatorSuppressed_ = suppressed; }

 private:
  bool store(float level, std::string_view category);  // whether that is a change
  void announce(std::string_view category);
  nlohmann::json save() const;
  void restore(const nlohmann::json& saved);

  Phone& phone_;
  std::map<std::string, float, std::less<>> volumes_;
  AudioRoute route_;
  bool indicatorSuppressed_ = false;
};

}  // namespace sim
