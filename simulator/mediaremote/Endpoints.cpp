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
  tellObservers();
}

}  // namespace sim
