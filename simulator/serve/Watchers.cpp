#include "simulator/serve/Watchers.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <string>

#include "simulator/serve/RequestError.h"

namespace sim {

bool Watchers::has(const std::string& page) const {
  return std::any_of(watchers_.begin(), watchers_.end(),
                     [&page](const Watcher& each) { return each->page() == page; });
}

void Watchers::add(const Watcher& watcher) {
  if (std::find(watchers_.begin(), watchers_.end(), watcher) != watchers_.end()) return;
  if (watchers_.size() >= most)
    throw RequestError(503, "expected at most " + std::to_string(most) + " pages that watch");
  watchers_.push_back(watcher);
}

void Watchers::remove(const Watcher& watcher) {
  std::erase(watchers_, watcher);
}

void Watchers::send(const std::string& event, const nlohmann::json& data) const {
  if (!watchers_.empty()) sendText(eventText(event, data));
}

void Watchers::sendText(const std::string& event) const {
  for (const Watcher& each : watchers_) each->put(event);
}

void Watchers::startOver(const std::function<std::string(const Watcher&)>& snapshot) const {
  for (const Watcher& each : watchers_) each->startOver(snapshot(each));
}

void Watchers::close() const {
  for (const Watcher& each : watchers_) each->close();
}

std::string jsonText(const nlohmann::json& data) {
  return data.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
}

std::string eventText(const std::string& event, const nlohmann::json& data) {
  return "event: " + event + "\ndata: " + jsonText(data) + "\n\n";
}

}  // namespace sim
