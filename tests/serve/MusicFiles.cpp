#include "tests/serve/MusicFiles.h"

#include <cstdint>
#include <initializer_list>

namespace sim {
namespace {

std::string big(std::uint64_t value, int bytes) {
  std::string text;
  while (bytes > 0) text += char(value >> (8 * --bytes));
  return text;
}

std::string little(std::uint64_t value, int bytes) {
  std::string text;
  for (int count = 0; count < bytes; ++count) text += char(value >> (8 * count));
  return text;
}

constexpr std::uint64_t rate = 8000;  // samples a second, where the format leaves the choice

std::string oggPage(int flags, std::uint64_t position, int number, const std::string& packet) {
  std::string lacing(packet.size() / 255, '\xff');
  lacing += char(packet.size() % 255);
  return "OggS" + little(0, 1) + little(std::uint64_t(flags), 1) + little(position, 8) +
         little(1, 4) + little(std::uint64_t(number), 4) + little(0, 4) + little(lacing.size(), 1) +
         lacing + packet;
}

std::string atom(const std::string& name, const std::string& content) {
  return big(content.size() + 8, 4) + name + content;
}

}  // namespace

// MPEG 1 layer III, 128 kbit/s at 44,100 samples a second: frames of 1,152 samples in 417 bytes.
std::string mp3(int seconds) {
  std::string bytes;
  for (int frame = 0; frame * 1152 < seconds * 44'100; ++frame)
    bytes += std::string("\xff\xfb\x90\x00", 4) + std::string(413, '\0');
  return bytes;
}

std::string flac(int seconds) {
  const std::uint64_t layout = rate << 44 | std::uint64_t(15) << 36 | rate * std::uint64_t(seconds);
  const std::string information =
      big(4096, 2) + big(4096, 2) + big(0, 3) + big(0, 3) + big(layout, 8) + std::string(16, '\0');
  return "fLaC" + big(0x80, 1) + big(information.size(), 3) + information + std::string(100, '\0');
}

std::string wave(int seconds) {
  const std::string samples(std::size_t(seconds) * rate * 2, '\0');
  const std::string format = little(1, 2) + little(1, 2) + little(rate, 4) + little(rate * 2, 4) +
                             little(2, 2) + little(16, 2);
  const std::string content =
      "WAVEfmt " + little(format.size(), 4) + format + "data" + little(samples.size(), 4) + samples;
  return "RIFF" + little(content.size(), 4) + content;
}

std::string oggVorbis(int seconds) {
  const std::string identification = "\x01vorbis" + little(0, 4) + little(1, 1) + little(rate, 4) +
                                     little(0, 4) + little(64'000, 4) + little(0, 4) + "\xb8\x01";
  const std::string comment = "\x03vorbis" + little(4, 4) + "test" + little(0, 4) + "\x01";
  const std::string setup = "\x05vorbis" + std::string(20, '\0');
  return oggPage(2, 0, 0, identification) + oggPage(0, 0, 1, comment) + oggPage(0, 0, 2, setup) +
         oggPage(4, rate * std::uint64_t(seconds), 3, std::string(100, '\0'));
}

std::string m4a(int seconds) {
  const std::string units = big(rate, 4) + big(rate * std::uint64_t(seconds), 4);
  const std::string movieHeader =
      atom("mvhd", std::string(12, '\0') + units + std::string(80, '\0'));
  const std::string mediaHeader =
      atom("mdhd", std::string(12, '\0') + units + std::string(4, '\0'));
  const std::string handler = atom("hdlr", std::string(8, '\0') + "soun" + std::string(13, '\0'));
  const std::string sound = std::string(6, '\0') + big(1, 2) + std::string(8, '\0') + big(2, 2) +
                            big(16, 2) + std::string(4, '\0') + big(rate << 16, 4);
  const std::string description = atom("stsd", big(0, 4) + big(1, 4) + atom("mp4a", sound));
  const std::string media =
      atom("mdia", mediaHeader + handler + atom("minf", atom("stbl", description)));
  return atom("ftyp", "M4A " + big(0, 4) + "M4A mp42") +
         atom("moov", movieHeader + atom("trak", media)) + atom("mdat", std::string(100, '\0'));
}

std::string png() {
  return std::string("\x89PNG\r\n\x1a\n", 8) + "one pixel";
}

}  // namespace sim
