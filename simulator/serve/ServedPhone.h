// A phone that lives by the wall clock and does what pages ask of it.
#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <vector>

#include "simulator/script/Interpreter.h"
#include "simulator/serve/Inbox.h"
#include "simulator/serve/Pace.h"
#include "simulator/serve/PlayerView.h"
#include "simulator/serve/Report.h"
#include "simulator/serve/ServeState.h"
#include "simulator/serve/Settings.h"
#include "simulator/serve/Watchers.h"
#include "simulator/serve/music/MusicLibrary.h"

namespace sim {

// All members are the phone's thread's. Requests throw RequestError; what they answer is for the
// page as it is.
class ServedPhone {
 public:
  using Json = nlohmann::json;

  // Called when the phone goes on in another process, with the answer that is still owed to the
  // page that caused it: must execute the program with this state file.
  using Leave = std::function<void(const Json& answer, const std::filesystem::path& stateFile)>;

  ServedPhone(ServeState state, const MusicLibrary& library, Inbox& inbox, Leave leave);
  ~ServedPhone();
  ServedPhone(const ServedPhone&) = delete;
  ServedPhone& operator=(const ServedPhone&) = delete;

  // Makes the phone. Throws ScriptParseError when its set-up is wrong.
  void begin();
  // Goes on with one whose process has ended.
  void goOn(const RestartState& saved);
  // Until the inbox is stopped.
  void run();

  Json command(const std::vector<std::string>& lines);
  Json commands() const;

  struct TimeChange {
    std::optional<double> speed;
    std::optional<bool> paused;
    bool step = false;
    std::optional<double> advance, to, beforeEnd;  // seconds; `to` an uptime
  };
  Json changeTime(const TimeChange& change);

  // A fresh phone; does not return.
  Json makeAnew(const std::vector<std::string>& setup, bool keepsSettings);
  Json setup() const;
  Json settings() const { return settings_.list(); }

  Json openScript(std::string name, std::string text);  // does not return
  Json stepScript(std::optional<long> lines);           // none: to the end
  Json closeScript();
  Json script() const;

  enum class Sound { ask, take, release };
  Json chooseSound(const std::string& page, Sound how);

  Json journal() const;
  std::string recording() const;

  // Sends everything to a page that begins to watch, or that is behind.
  void watch(const Watchers::Watcher& watcher);
  void unwatch(const Watchers::Watcher& watcher);

 private:
  using Moment = std::chrono::steady_clock::time_point;

  void addParts();
  Json clockPart() const;
  Json phonePart() const;
  Json audioPart() const;
  Json scriptPart() const;

  std::vector<std::string> firstLines() const;
  void play(const std::string& text);
  void playScriptLine();
  bool isScriptRunning() const;
  void jumpTo(Nanoseconds uptime);
  Nanoseconds destination(const TimeChange& change) const;

  bool catchUp();
  void setOut();
  std::optional<Moment> nextMoment() const;
  void tellWatchers(Moment now);

  void notePicture(const std::string& name);

  void leaveInMiddle(const std::filesystem::path& stateFile);
  void leaveForFreshPhone(ServeState fresh);

  ServeState state_;
  const MusicLibrary& library_;
  Inbox& inbox_;
  Leave leave_;
  Session session_;
  CommandTable table_;
  std::unique_ptr<Interpreter> interpreter_;
  Pace pace_;
  PlayerView player_;
  Settings settings_;
  Watchers watchers_;
  Report report_;
  long linesPlayed_ = 0;
  std::size_t ran_ = 0;  // lines of the request being answered
  bool changed_ = true;  // since the watchers were told
  Moment told_{};        // when that was
};

}  // namespace sim
