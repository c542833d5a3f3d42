// One connection, as the HTTP library reads and writes it.
#pragma once

#include <array>
#include <chrono>
#include <cstddef>

#include "simulator/serve/http/RequestStream.h"

namespace sim {

// Waits without waking up in between: an idle connection costs nothing. Does not own the socket.
class SocketStream final : public RequestStream {
 public:
  explicit SocketStream(int descriptor) : descriptor_(descriptor) {}

  // Whether a request begins within that time; false also when the other side is gone.
  bool waitForRequest(std::chrono::milliseconds patience);

  // What one request may have in all: a sender without end is cut off, and so is one who sends a
  // byte now and then.
  void allow(std::size_t bytes, std::chrono::milliseconds time) {
    allowed_ = bytes;
    deadline_ = std::chrono::steady_clock::now() + time;
  }

  bool is_readable() const override;
  bool is_writable() const override;
  ssize_t write(const char* bytes, size_t size) override;
  socket_t socket() const override { return descriptor_; }

 private:
  ssize_t receive(char* place, size_t size) override;
  bool fill();

  int descriptor_;
  std::array<char, 4096> buffer_;
  std::size_t at_ = 0, end_ = 0;  // what has been received and not yet read
  std::size_t allowed_ = 0;
  std::chrono::steady_clock::time_point deadline_{};  // of the request that is being read
};

}  // namespace sim
