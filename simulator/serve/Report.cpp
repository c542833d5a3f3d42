#include "simulator/serve/Report.h"

#include <algorithm>
#include <utility>

namespace sim {

using nlohmann::json;

namespace {

// Older entries are in GET /api/journal.
constexpr std::size_t entriesInSnapshot = 1000;

}  // namespace

json changedMembers(const json& before, const json& now) {
  json changed = json::object();
  for (const auto& [key, value] : now.items()) {
    const auto known = before.find(key);
    if (known == before.end() || *known != value) changed[key] = value;
  }
  return changed;
}

void Report::addPart(const std::string& name, std::function<Json()> whole) {
  parts_[name] = {Way::whole, std::move(whole), {}};
}

void Report::addMemberwisePart(const std::string& name, std::function<Json()> whole) {
  parts_[name] = {Way::memberwise, std::move(whole), {}};
}

void Report::addOnDemandPart(const std::string& name, std::function<Json()> whole) {
  parts_[name] = {Way::onDemand, std::move(whole), {}};
}

void Report::tell(const Send& send) {
  for (auto& [name, part] : parts_) tellPart(send, name, part);
  tellJournal(send);
  tellScene(send);
}

void Report::tellPart(const Send& send, const std::string& name, Part& part) {
  if (part.way == Way::onDemand) {
    if (std::exchange(part.isDemanded, false)) send(name, part.whole());
    return;
  }
  Json now = part.whole();
  if (now == part.known) return;
  send(name, part.way == Way::memberwise ? changedMembers(part.known, now) : now);
  part.known = std::move(now);
}

void Report::tellJournal(const Send& send) {
  const std::size_t count = journal_.size();
  if (count == journalKnown_) return;
  // Nobody reads more in one picture.
  const std::size_t recent = count - std::min(count, entriesInSnapshot);
  send("journal", {{"entries", entriesFrom(std::max(journalKnown_, recent))}});
  journalKnown_ = count;
}

void Report::tellScene(const Send& send) {
  if (const Json changes = scene_.changes(); !changes.is_null()) send("scene", changes);
}

json Report::snapshot() {
  Json whole;
  for (auto& [name, part] : parts_) {
    part.known = part.whole();
    part.isDemanded = false;
    whole[name] = part.known;
  }
  journalKnown_ = journal_.size();
  whole["journal"] = entriesFrom(journalKnown_ - std::min(journalKnown_, entriesInSnapshot));
  whole["scene"] = scene_.whole();
  return whole;
}

json Report::entriesFrom(std::size_t index) const {
  Json entries = Json::array();
  journal_.visit(index, [&entries, &index](const JournalEntry& entry) {
    entries.push_back(asJson(entry, index++));
    return true;
  });
  return entries;
}

json asJson(const JournalEntry& entry, std::size_t index) {
  return {{"n", index + 1}, {"time", seconds(entry.time)}, {"text", entry.text}};
}

}  // namespace sim
