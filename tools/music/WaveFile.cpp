#include "tools/music/WaveFile.h"

#include <cerrno>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>

namespace music {
namespace {

constexpr int bytesPerSample = 2;

std::string little(std::uint32_t value, int bytes) {
  std::string text;
  for (int count = 0; count < bytes; ++count) text += char(value >> (8 * count) & 0xff);
  return text;
}

// Padded to an even length, as the format wants it.
std::string chunk(std::string_view name, const std::string& content) {
  std::string text = std::string(name) + little(std::uint32_t(content.size()), 4) + content;
  if (content.size() % 2 != 0) text += '\0';
  return text;
}

std::string text(std::string_view name, const char* value) {
  return chunk(name, std::string(value) + '\0');
}

std::string format() {
  constexpr std::uint32_t plainSamples = 1;
  constexpr std::uint32_t frame = Sound::channels * bytesPerSample;
  return little(plainSamples, 2) + little(Sound::channels, 2) + little(Sound::rate, 4) +
         little(Sound::rate * frame, 4) + little(frame, 2) + little(8 * bytesPerSample, 2);
}

std::string samples(const Sound& sound) {
  std::string bytes;
  bytes.reserve(sound.samples().size() * bytesPerSample);
  for (const double sample : sound.samples())
    bytes += little(std::uint32_t(std::int32_t(std::lround(sample * 32767))), bytesPerSample);
  return bytes;
}

}  // namespace

void writeWaveFile(const Piece& piece, const std::filesystem::path& file) {
  const std::string content =
      "WAVE" + chunk("fmt ", format()) +
      chunk("LIST", "INFO" + text("INAM", piece.title) + text("IART", piece.artist) +
                        text("IPRD", piece.album)) +
      chunk("data", samples(piece.sound));
  const std::filesystem::path temporary = file.string() + ".part";
  std::ofstream stream(temporary, std::ios::binary);
  stream << chunk("RIFF", content);
  stream.close();
  if (!stream) throw std::runtime_error(temporary.string() + ": " + std::strerror(errno));
  std::filesystem::rename(temporary, file);
}

}  // namespace music
