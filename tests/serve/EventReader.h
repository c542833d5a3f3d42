// A page that watches: reads server-sent events on a thread of its own.
#pragma once

#include <httplib.h>

#include <condition_variable>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <nlohmann/json.hpp>
#include <string>
#include <thread>

#include "tests/serve/ServedProgram.h"

namespace sim {

struct Event {
  std::string name;
  nlohmann::json data;
};

class EventReader {
 public:
  explicit EventReader(const ServedProgram& program, const std::string& page = "");
  // Goes away.
  ~EventReader();
  EventReader(const EventReader&) = delete;
  EventReader& operator=(const EventReader&) = delete;

  // The next event of that name; those before it are forgotten. Throws std::runtime_error when
  // none comes within a minute.
  Event next(const std::string& name);
  // Likewise, the next one of that name, or of any when it is empty, that is as wanted.
  Event next(const std::string& name, const std::function<bool(const nlohmann::json&)>& isWanted);
  // Whether the server has ended the stream; waits up to a minute for it.
  bool isOver();
  // How many bytes have come so far.
  std::size_t bytes();

 private:
  void receive(std::string_view piece);
  void add(const std::string& text);

  httplib::Client client_;
  std::string unread_;  // of an event that is not complete yet; the reading thread's
  std::mutex mutex_;
  std::condition_variable changed_;
  std::deque<Event> events_;
  std::size_t bytes_ = 0;
  bool over_ = false;
  std::thread thread_;
};

}  // namespace sim
