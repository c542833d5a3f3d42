// In a host: a phone that lives by the wall clock and does what pages ask of it.
#pragma once

#include <chrono>
#include <deque>
#include <functional>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <vector>

#include "simulator/host/Zygote.h"
#include "simulator/script/Interpreter.h"
#include "simulator/serve/Pace.h"
#include "simulator/serve/PhoneJob.h"
#include "simulator/serve/PlayerView.h"
#include "simulator/serve/Report.h"
#include "simulator/serve/ServeState.h"
#include "simulator/serve/Settings.h"
#include "simulator/serve/TimerView.h"
#include "simulator/serve/music/MusicLibrary.h"

namespace sim {

// Says of itself, in the head of messages to the supervisor:
//
//   ready                  it has begun
//   again                  it has come past the moment it was made for: how the next is to begin
//   failed, index, column  what was wrong with which of the first lines
//   event                  what pages are told, with the event's text as the body
//   answer, status         of the request with that number; the body is JSON
//   begun / done / instead / forget   a line takes effect at an uptime; has taken it; so have these
//                                     lines in its place; has not
//   checkpoint             what the next host has to know if this one dies just now
//   restart, request       the same as it ends in order, and the request that is being answered
//   progress               a command goes on: the uptime it has reached
class ServedPhone {
 public:
  using Json = nlohmann::json;

  ServedPhone(Session& session, const CommandTable& commands, HostEnds& ends,
              const MusicLibrary& library, const Json& job);

  // Until the supervisor ends it.
  void run();

 private:
  using Moment = std::chrono::steady_clock::time_point;
  struct TimeChange {
    std::optional<double> speed;
    std::optional<bool> paused;
    bool step = false;
    std::optional<double> advance, to, beforeEnd;  // seconds; `to` an uptime
  };

  bool begin();
  void resume();
  std::vector<std::string> firstLines() const;

  // Of what is asked for by that name. Throws RequestError.
  Json answer(const Json& request);
  Json command(const std::vector<std::string>& lines);
  Json commands() const;
  Json changeTime(const TimeChange& change);
  Json setup() const;
  Json snapshot();
  Json stepScript(std::optional<long> lines);  // none: to the end
  Json closeScript();
  Json script() const;
  void requireCommands(const std::string& script) const;

  void addParts();
  Json clockPart() const;
  Json phonePart() const;
  Json scriptPart() const;

  void play(const std::string& text);
  void playScriptLine();
  void playScriptLineAt(std::size_t number, const std::string& text);
  bool isScriptRunning() const;
  void leaveScript();
  void reachGoal();
  bool isAtGoal(std::size_t number);
  void tryAgain(std::size_t number);
  std::optional<Nanoseconds> endOfAdvance(const std::string& text) const;
  void jumpTo(Nanoseconds uptime);
  Nanoseconds destination(const TimeChange& change);
  void notePicture(const std::string& name);

  bool catchUp();
  void rebase();
  std::optional<Moment> nextMoment() const;
  void tellSubscribers(Moment now);
  void saveState(Moment now);

  void send(Json head, std::string body = {});
  void receive();
  void take(const Json& request);
  void answerNext();
  void answerNow(const Json& request);
  void progress();

  Session& session_;
  const CommandTable& table_;
  Channel& supervisor_;
  const MusicLibrary& library_;
  PhoneJob job_;
  ServeState state_;
  std::vector<std::string> scriptLines_;
  std::optional<Interpreter> interpreter_;
  Pace pace_;
  PlayerView player_;
  TimerView timer_;
  Settings settings_;
  Report report_;

  std::deque<Json> requests_;
  Json request_;  // being answered; null: none
  bool hasSubscribers_ = false;
  bool isInterrupted_ = false;
  long linesPlayed_ = 0;
  std::size_t ran_ = 0;              // lines of the request being answered
  std::ostream* printed_ = nullptr;  // what they have printed
  bool changed_ = true;              // since the subscribers were told
  Moment told_{}, progressed_{}, saved_{};
  std::size_t savedAt_ = 0;  // lines of the journal
  bool mustSave_ = true;
};

}  // namespace sim
