// What one watching page has still to be sent.
#pragma once

#include <cstddef>
#include <deque>
#include <mutex>
#include <string>
#include <string_view>

namespace sim {

// The phone's thread puts events in and never waits; the connection's thread takes them out. A
// reader who is too slow loses all that waits and is behind from then on, until it is reset.
class EventQueue {
 public:
  explicit EventQueue(std::string page);
  ~EventQueue();
  EventQueue(const EventQueue&) = delete;
  EventQueue& operator=(const EventQueue&) = delete;

  const std::string& page() const { return page_; }

  // Does nothing once the reader is behind.
  void put(std::string_view event);
  // The first event of those that follow, in place of all before.
  void reset(std::string snapshot);
  // No further events will come.
  void close();

  enum class News { events, behind, closed, readerGone };
  // Sleeps until there is something to do; a socket below 0 is not watched.
  News wait(int socket);
  // Everything that waits, in one piece.
  std::string take();

  // More than this and the reader is behind.
  static constexpr std::size_t mostBytes = std::size_t(1) * 1024 * 1024;

 private:
  void wake() const;
  void settle() const;

  const std::string page_;
  int wakeUp_;  // eventfd: a connection's thread waits for its socket at the same time
  std::mutex mutex_;
  std::string waiting_;
  bool behind_ = false;
  bool closed_ = false;
};

}  // namespace sim
