#include "simulator/serve/Subscribers.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <string>

#include "simulator/serve/RequestError.h"

namespace sim {

bool Subscribers::has(const std::string& page) const {
  return std::any_of(subscribers_.begin(), subscribers_.end(),
                     [&page](const Subscriber& each) { return each->page() == page; });
}

void Subscribers::add(const Subscriber& subscriber) {
  if (std::find(subscribers_.begin(), subscribers_.end(), subscriber) != subscribers_.end()) return;
  if (subscribers_.size() >= most)
    throw RequestError(503, "expected at most " + std::to_string(most) + " pages that watch");
  subscribers_.push_back(subscriber);
}

void Subscribers::remove(const Subscriber& subscriber) {
  std::erase(subscribers_, subscriber);
}

void Subscribers::send(const std::string& event, const nlohmann::json& data) const {
  if (!subscribers_.empty()) sendText(eventText(event, data));
}

void Subscribers::sendText(const std::string& event) const {
  for (const Subscriber& each : subscribers_) each->put(event);
}

void Subscribers::reset(const std::function<std::string(const Subscriber&)>& snapshot) const {
  for (const Subscriber& each : subscribers_) each->reset(snapshot(each));
}

void Subscribers::close() const {
  for (const Subscriber& each : subscribers_) each->close();
}

std::string jsonText(const nlohmann::json& data) {
  return data.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
}

std::string eventText(const std::string& event, const nlohmann::json& data) {
  return "event: " + event + "\ndata: " + jsonText(data) + "\n\n";
}

}  // namespace sim
