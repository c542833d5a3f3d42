#include "simulator/mediaremote/Endpoints.h"

#include <nlohmann/json.hpp>
#include <utility>

namespace sim {

Endpoints::Endpoints(Phone& phone) {
  phone.survives("endpoints", {[this] { return nlohmann::json(names_); },
                               [this](const nlohmann::json& saved) {
                                 names_ = saved.get<std::vector<std::string>>();
                               }});
}

Endpoints& Endpoints::current() {
  return Phone::current().state<Endpoints>();
}

void Endpoints::find(std::vector<std::string> names) {
  names_ = std::move(names);
  const auto now = observers_;  // one of them may forget another
  for (const auto& [number, observer] : now)
    if (observers_.contains(number)) observer();
}

long Endpoints::observe(std::function<void()> observer) {
  observers_.emplace(++lastObserver_, std::move(observer));
  return lastObserver_;
}

}  // namespace sim
