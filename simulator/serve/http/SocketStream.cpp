#include "simulator/serve/http/SocketStream.h"

#include <poll.h>
#include <sys/socket.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace sim {
namespace {

using std::chrono::milliseconds;

// For a reader who has stopped reading.
constexpr milliseconds writePatience{30'000};

bool waitFor(int descriptor, short events, milliseconds patience) {
  pollfd watched{descriptor, events, 0};
  int ready = 0;
  do ready = poll(&watched, 1, int(patience.count()));
  while (ready < 0 && errno == EINTR);
  return ready > 0;
}

}  // namespace

bool SocketStream::waitForRequest(milliseconds patience) {
  if (at_ < end_) return true;
  return waitFor(descriptor_, POLLIN, patience) && fill();
}

bool SocketStream::is_readable() const {
  const auto left = std::chrono::ceil<milliseconds>(deadline_ - std::chrono::steady_clock::now());
  return left.count() > 0 && (at_ < end_ || waitFor(descriptor_, POLLIN, left));
}

bool SocketStream::is_writable() const {
  return waitFor(descriptor_, POLLOUT, writePatience);
}

bool SocketStream::fill() {
  ssize_t count = 0;
  do count = recv(descriptor_, buffer_.data(), buffer_.size(), 0);
  while (count < 0 && errno == EINTR);
  at_ = 0;
  end_ = count > 0 ? std::size_t(count) : 0;
  return count > 0;
}

ssize_t SocketStream::receive(char* place, size_t size) {
  if (allowed_ == 0 || !is_readable()) return -1;
  if (at_ == end_ && !fill()) return 0;
  const std::size_t count = std::min({size, end_ - at_, allowed_});
  std::memcpy(place, buffer_.data() + at_, count);
  at_ += count;
  allowed_ -= count;
  return ssize_t(count);
}

ssize_t SocketStream::write(const char* bytes, size_t size) {
  if (!is_writable()) return -1;
  ssize_t count = 0;
  do count = send(descriptor_, bytes, size, MSG_NOSIGNAL | MSG_DONTWAIT);
  while (count < 0 && errno == EINTR);
  return count;
}

}  // namespace sim
