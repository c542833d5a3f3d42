// The simulated phone: the deterministic machine that the stand-ins of the host's classes live on.
#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <nlohmann/json_fwd.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "simulator/machine/Clock.h"
#include "simulator/machine/Journal.h"
#include "simulator/machine/MainQueue.h"
#include "simulator/machine/Setup.h"
#include "simulator/machine/StateSlots.h"

namespace sim {

// What a path from a script or an extension means below a folder that it shall not lead out of,
// relative to that.
std::filesystem::path pathWithin(std::string_view path);

class Phone {
 public:
  explicit Phone(const std::filesystem::path& root);
  ~Phone();
  Phone(const Phone&) = delete;
  Phone& operator=(const Phone&) = delete;

  // The phone of this process. There is one, from the start of the program to its end.
  static Phone& current();

  Clock clock;
  MainQueue queue{clock};
  Journal journal{clock};
  Setup setup;

  // Where a path of the phone ("/var/jb/…") lies on this machine: below the root folder.
  // A path that would leave the root ("..") stays inside it.
  std::filesystem::path file(std::string_view phonePath) const;
  const std::filesystem::path& root() const { return root_; }
  void setRoot(const std::filesystem::path& root) { root_ = std::filesystem::absolute(root); }

  // What outlives the host process because on a phone it lives in another one (the music player,
  // the audio system): saved before a restart, given back after it.
  struct Survivor {
    std::function<nlohmann::json()> save;
    std::function<void(const nlohmann::json&)> restore;
  };
  void survives(std::string name, Survivor survivor);
  nlohmann::json saveSurvivors() const;
  void restoreSurvivors(const nlohmann::json& saved);

  // The phone's one object of that type, made on first use; it ends with the phone.
  template <class T>
  T& state() {
    return states_.get<T>(*this);
  }

 private:
  std::filesystem::path root_;
  std::map<std::string, Survivor> survivors_;
  StateSlots states_;  // last: ends while the rest is there
};

}  // namespace sim
