// Sound being put together, sample by sample.
#pragma once

#include <cstddef>
#include <vector>

namespace music {

// Two channels, every other sample is the left one's; 1 is as loud as can be.
class Sound {
 public:
  static constexpr int rate = 24'000;  // samples a second: soft sounds have no more in them
  static constexpr int channels = 2;

  explicit Sound(double seconds);

  std::size_t length() const { return samples_.size() / channels; }
  double seconds() const { return double(length()) / rate; }
  const std::vector<double>& samples() const { return samples_; }

  // Beyond the ends nothing is heard. `place` from 0 (left) to 1 (right).
  void add(std::size_t at, double value, double place);

  // Room around it: quieter and quieter echoes, crossing from side to side.
  void echo(double delay, double feedback);
  // From silence and to silence, without a click.
  void fade(double in, double out);
  // As loud as `peak` at its loudest.
  void normalise(double peak);

 private:
  std::vector<double> samples_;
};

}  // namespace music
