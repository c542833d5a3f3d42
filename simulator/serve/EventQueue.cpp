#include "simulator/serve/EventQueue.h"

#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdint>
#include <system_error>
#include <utility>

namespace sim {

EventQueue::EventQueue(std::string page)
    : page_(std::move(page)), wakeUp_(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {
  if (wakeUp_ < 0) throw std::system_error(errno, std::generic_category(), "eventfd");
}

EventQueue::~EventQueue() {
  ::close(wakeUp_);
}

void EventQueue::wake() const {
  const std::uint64_t one = 1;
  [[maybe_unused]] const auto written = write(wakeUp_, &one, sizeof one);
}

void EventQueue::settle() const {
  std::uint64_t count = 0;
  [[maybe_unused]] const auto ignored = read(wakeUp_, &count, sizeof count);
}

void EventQueue::put(std::string_view event) {
  const std::lock_guard lock(mutex_);
  if (behind_ || closed_) return;
  if (waiting_.size() + event.size() > mostBytes) {
    waiting_ = {};
    behind_ = true;
  } else {
    waiting_ += event;
  }
  wake();
}

void EventQueue::reset(std::string snapshot) {
  const std::lock_guard lock(mutex_);
  waiting_ = std::move(snapshot);
  behind_ = false;
  wake();
}

void EventQueue::close() {
  const std::lock_guard lock(mutex_);
  closed_ = true;
  wake();
}

EventQueue::News EventQueue::wait(int socket) {
  for (;;) {
    settle();
    {
      const std::lock_guard lock(mutex_);
      if (closed_) return News::closed;
      if (behind_) return News::behind;
      if (!waiting_.empty()) return News::events;
    }
    std::array<pollfd, 2> watched{{{wakeUp_, POLLIN, 0}, {socket, POLLRDHUP, 0}}};
    if (poll(watched.data(), watched.size(), -1) < 0 && errno != EINTR) return News::readerGone;
    if ((watched[1].revents & (POLLRDHUP | POLLHUP | POLLERR)) != 0) return News::readerGone;
  }
}

std::string EventQueue::take() {
  const std::lock_guard lock(mutex_);
  return std::exchange(waiting_, {});
}

}  // namespace sim
