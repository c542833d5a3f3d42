// What pages know of the phone, and what has changed since they were last told.
#pragma once

#include <functional>
#include <map>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "simulator/machine/Journal.h"
#include "simulator/serve/SceneSource.h"

namespace sim {

// A part is an event's name and its whole data. The phone's thread only.
class Report {
 public:
  using Json = nlohmann::json;

  explicit Report(const Journal& journal) : journal_(journal) {}

  // Sent whole when it differs.
  void addPart(const std::string& name, std::function<Json()> whole);
  // Sent as those members that differ.
  void addMemberwisePart(const std::string& name, std::function<Json()> whole);
  // Sent when somebody says so.
  void addOnDemandPart(const std::string& name, std::function<Json()> whole);
  void demand(const std::string& name) { parts_.at(name).isDemanded = true; }

  // Sends what has changed.
  using Send = std::function<void(const std::string& event, const Json& data)>;
  void tell(const Send& send);
  // Takes the present state for known to everybody; its whole, as an event's data.
  Json snapshot();

  bool isAnimating() const { return scene_.isAnimating(); }

 private:
  enum class Way { whole, memberwise, onDemand };
  struct Part {
    Way way;
    std::function<Json()> whole;
    Json known;
    bool isDemanded = false;
  };

  static void tellPart(const Send& send, const std::string& name, Part& part);
  void tellJournal(const Send& send);
  void tellScene(const Send& send);
  Json entriesFrom(std::size_t index) const;

  const Journal& journal_;
  SceneSource scene_;
  std::map<std::string, Part> parts_;
  std::size_t journalKnown_ = 0;
};

// As pages get it; the index counts from 0.
nlohmann::json asJson(const JournalEntry& entry, std::size_t index);

// Members of `now` that are not in `before` or different there.
nlohmann::json changedMembers(const nlohmann::json& before, const nlohmann::json& now);

}  // namespace sim
