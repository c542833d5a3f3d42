#include "tests/serve/EventReader.h"

#include <stdexcept>

namespace sim {
namespace {

constexpr std::chrono::minutes longestWait{1};

std::string line(const std::string& text, const std::string& field) {
  const auto start = text.find(field + ": ");
  if (start == std::string::npos) return "";
  const auto from = start + field.size() + 2;
  return text.substr(from, text.find('\n', from) - from);
}

}  // namespace

EventReader::EventReader(const ServedProgram& program, const std::string& page)
    : client_(program.client()) {
  client_.set_read_timeout(3600);
  const std::string path = page.empty() ? "/api/events" : "/api/events?page=" + page;
  thread_ = std::thread([this, path] {
    client_.Get(path, [this](const char* bytes, std::size_t size) {
      receive({bytes, size});
      return true;
    });
    const std::lock_guard lock(mutex_);
    over_ = true;
    changed_.notify_all();
  });
}

EventReader::~EventReader() {
  client_.stop();
  thread_.join();
}

void EventReader::receive(std::string_view piece) {
  unread_ += piece;
  {
    const std::lock_guard lock(mutex_);
    bytes_ += piece.size();
  }
  for (auto end = unread_.find("\n\n"); end != std::string::npos; end = unread_.find("\n\n")) {
    add(unread_.substr(0, end));
    unread_.erase(0, end + 2);
  }
}

void EventReader::add(const std::string& text) {
  const std::lock_guard lock(mutex_);
  events_.push_back({line(text, "event"), nlohmann::json::parse(line(text, "data"))});
  changed_.notify_all();
}

Event EventReader::next(const std::string& name) {
  return next(name, [](const nlohmann::json&) { return true; });
}

Event EventReader::next(const std::string& name,
                        const std::function<bool(const nlohmann::json&)>& isWanted) {
  std::unique_lock lock(mutex_);
  for (;;) {
    if (!changed_.wait_for(lock, longestWait, [this] { return !events_.empty() || over_; }))
      throw std::runtime_error("no event " + name + " comes");
    if (events_.empty()) throw std::runtime_error("the stream is over before an event " + name);
    Event event = std::move(events_.front());
    events_.pop_front();
    if ((name.empty() || event.name == name) && isWanted(event.data)) return event;
  }
}

bool EventReader::isOver() {
  std::unique_lock lock(mutex_);
  return changed_.wait_for(lock, longestWait, [this] { return over_; });
}

std::size_t EventReader::bytes() {
  const std::lock_guard lock(mutex_);
  return bytes_;
}

}  // namespace sim
