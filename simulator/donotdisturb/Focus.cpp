#include "simulator/donotdisturb/Focus.h"

#include <nlohmann/json.hpp>

namespace sim {

Focus::Focus(Phone& phone) {
  phone.survives("do not disturb", {[this] { return nlohmann::json(on_); },
                                    [this](const nlohmann::json& saved) { saved.get_to(on_); }});
}

Focus& Focus::current() {
  return Phone::current().state<Focus>();
}

}  // namespace sim
