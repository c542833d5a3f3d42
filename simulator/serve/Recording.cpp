#include "simulator/serve/Recording.h"

#include <nlohmann/json.hpp>
#include <utility>

namespace sim {

using nlohmann::json;

namespace {

constexpr std::size_t decimals = 9;  // of nanoseconds

}  // namespace

std::string secondsText(Nanoseconds duration) {
  std::string fraction = std::to_string(duration % nanosecondsPerSecond);
  fraction.insert(0, decimals - fraction.size(), '0');
  fraction.erase(fraction.find_last_not_of('0') + 1);
  const std::string whole = std::to_string(duration / nanosecondsPerSecond);
  return fraction.empty() ? whole : whole + '.' + fraction;
}

void Recording::begin(std::string line, Nanoseconds uptime) {
  open_ = Step{std::move(line), uptime, uptime};
}

void Recording::done(Nanoseconds uptime) {
  if (!open_) return;
  open_->ended = uptime;
  steps_.push_back(std::move(*open_));
  open_.reset();
}

std::vector<std::string> Recording::lines() const {
  std::vector<std::string> all;
  all.reserve(steps_.size());
  for (const Step& step : steps_) all.push_back(step.line);
  return all;
}

std::string Recording::asScript(Nanoseconds uptime) const {
  std::string script;
  Nanoseconds reached = 0;
  const auto advanceTo = [&script, &reached](Nanoseconds moment) {
    if (moment > reached) script += "advance-to " + secondsText(moment) + '\n';
    reached = moment;
  };
  for (const Step& step : steps_) {
    advanceTo(step.begun);
    script += step.line + '\n';
    reached = step.ended;
  }
  advanceTo(uptime);
  return script;
}

json Recording::save() const {
  json saved = json::array();
  for (const Step& step : steps_) saved.push_back({step.line, step.begun, step.ended});
  if (open_) saved.push_back({open_->line, open_->begun, open_->ended});
  return saved;
}

void Recording::restore(const json& saved) {
  steps_.clear();
  for (const json& step : saved)
    steps_.push_back({step.at(0).get<std::string>(), step.at(1).get<Nanoseconds>(),
                      step.at(2).get<Nanoseconds>()});
}

}  // namespace sim
