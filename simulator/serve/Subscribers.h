// The pages that watch the phone.
#pragma once

#include <functional>
#include <memory>
#include <nlohmann/json_fwd.hpp>
#include <string>
#include <vector>

#include "simulator/serve/EventQueue.h"

namespace sim {

using Subscriber = std::shared_ptr<EventQueue>;

// The main thread only.
class Subscribers {
 public:
  // More pages than this are too many for one phone.
  static constexpr std::size_t most = 128;

  bool isEmpty() const { return subscribers_.empty(); }
  bool has(const std::string& page) const;

  // One that watches already stays as it is. RequestError 503 when there are too many.
  void add(const Subscriber& subscriber);
  void remove(const Subscriber& subscriber);
  // To all of them.
  void send(const std::string& event, const nlohmann::json& data) const;
  void sendText(const std::string& event) const;  // see eventText
  // Each begins with a snapshot of its own again.
  void reset(const std::function<std::string(const Subscriber&)>& snapshot) const;
  void close() const;

 private:
  std::vector<Subscriber> subscribers_;
};

// The text of a server-sent event.
std::string eventText(const std::string& event, const nlohmann::json& data);
// What is not UTF-8, such as a damaged tag of a file, becomes the replacement character.
std::string jsonText(const nlohmann::json& data);

}  // namespace sim
