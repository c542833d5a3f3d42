// Messages between the supervisor and its hosts.
#pragma once

#include <chrono>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <utility>

namespace sim {

struct Message {
  nlohmann::json head;
  std::string body;  // for whom the receiver only passes it on to
};

// One end of a connection between two processes of this program. Not for several threads at once.
class Channel {
 public:
  explicit Channel(int descriptor) : descriptor_(descriptor) {}
  Channel(Channel&& other) noexcept;
  Channel& operator=(Channel&& other) noexcept;
  ~Channel();

  // Both throw std::system_error.
  static std::pair<Channel, Channel> makePair();
  // Waits until all of it is on its way.
  void send(const Message& message);
  // Waits for the next one; nothing when the other end is closed.
  std::optional<Message> receive();

  // The same without waiting: what is posted goes out by flush(), what has come in by fill() is
  // given by next(). False when the other end is closed.
  void post(const Message& message);
  bool hasPosts() const { return !outgoing_.empty(); }
  bool flush();
  bool fill();
  std::optional<Message> next();
  // Until something has come in, or that moment; without one, as long as it takes.
  void waitUntil(std::optional<std::chrono::steady_clock::time_point> moment) const;

  int descriptor() const { return descriptor_; }

 private:
  int descriptor_;
  std::string incoming_, outgoing_;
  std::size_t at_ = 0;  // of `incoming_`, where the next message begins
};

}  // namespace sim
