#include "simulator/host/Channel.h"

#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <system_error>

namespace sim {
namespace {

struct Sizes {
  std::uint32_t head, body;
};

[[noreturn]] void fail(const char* what) {
  throw std::system_error(errno, std::generic_category(), what);
}

void waitFor(int descriptor, short events) {
  pollfd watched{descriptor, events, 0};
  while (poll(&watched, 1, -1) < 0 && errno == EINTR) continue;
}

bool isPassing(int problem) {
  return problem == EAGAIN || problem == EWOULDBLOCK || problem == EINTR;
}

}  // namespace

Channel::Channel(Channel&& other) noexcept
    : descriptor_(std::exchange(other.descriptor_, -1)),
      incoming_(std::move(other.incoming_)),
      outgoing_(std::move(other.outgoing_)),
      at_(other.at_) {}

Channel& Channel::operator=(Channel&& other) noexcept {
  std::swap(descriptor_, other.descriptor_);
  std::swap(incoming_, other.incoming_);
  std::swap(outgoing_, other.outgoing_);
  std::swap(at_, other.at_);
  return *this;
}

Channel::~Channel() {
  if (descriptor_ >= 0) close(descriptor_);
}

std::pair<Channel, Channel> Channel::makePair() {
  int ends[2];
  if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0) fail("socketpair");
  return {Channel(ends[0]), Channel(ends[1])};
}

void Channel::send(const Message& message) {
  post(message);
  while (flush()) {
    if (!hasPosts()) return;
    waitFor(descriptor_, POLLOUT);
  }
  fail("the other process has ended");
}

std::optional<Message> Channel::receive() {
  for (;;) {
    if (auto message = next()) return message;
    waitFor(descriptor_, POLLIN);
    if (!fill()) return std::nullopt;
  }
}

void Channel::waitUntil(std::optional<std::chrono::steady_clock::time_point> moment) const {
  pollfd watched{descriptor_, POLLIN, 0};
  if (!moment) {
    poll(&watched, 1, -1);
    return;
  }
  const auto left = std::chrono::nanoseconds(*moment - std::chrono::steady_clock::now()).count();
  if (left <= 0) return;
  const timespec patience{left / 1'000'000'000, left % 1'000'000'000};
  ppoll(&watched, 1, &patience, nullptr);
}

void Channel::post(const Message& message) {
  // Binary: what a journal says need not be text that JSON takes.
  const auto head = nlohmann::json::to_cbor(message.head);
  const Sizes sizes{std::uint32_t(head.size()), std::uint32_t(message.body.size())};
  outgoing_.append(reinterpret_cast<const char*>(&sizes), sizeof sizes);
  outgoing_.append(head.begin(), head.end());
  outgoing_ += message.body;
}

bool Channel::flush() {
  std::size_t sent = 0;
  while (sent < outgoing_.size()) {
    const ssize_t count = ::send(descriptor_, outgoing_.data() + sent, outgoing_.size() - sent,
                                 MSG_NOSIGNAL | MSG_DONTWAIT);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0 && !isPassing(errno)) return false;
    if (count < 0) break;
    sent += std::size_t(count);
  }
  outgoing_.erase(0, sent);
  return true;
}

bool Channel::fill() {
  std::array<char, 65536> piece;
  const ssize_t count = recv(descriptor_, piece.data(), piece.size(), MSG_DONTWAIT);
  if (count < 0) return isPassing(errno);
  incoming_.append(piece.data(), std::size_t(count));
  return count > 0;
}

std::optional<Message> Channel::next() {
  Sizes sizes{};
  const std::size_t there = incoming_.size() - at_;
  if (there < sizeof sizes) return std::nullopt;
  std::memcpy(&sizes, incoming_.data() + at_, sizeof sizes);
  const std::size_t whole = sizeof sizes + sizes.head + sizes.body;
  if (there < whole) return std::nullopt;
  const char* head = incoming_.data() + at_ + sizeof sizes;
  Message message{nlohmann::json::from_cbor(head, head + sizes.head),
                  std::string(head + sizes.head, sizes.body)};
  at_ += whole;
  if (at_ == incoming_.size() || at_ > incoming_.size() / 2) {
    incoming_.erase(0, at_);
    at_ = 0;
  }
  return message;
}

}  // namespace sim
