// What pages may ask of the phone.
#include <iostream>
#include <sstream>

#include "simulator/script/Interrupted.h"
#include "simulator/script/commands/HostCommands.h"
#include "simulator/serve/RequestError.h"
#include "simulator/serve/ScreenViews.h"
#include "simulator/serve/ServedPhone.h"
#include "simulator/serve/Subscribers.h"

namespace sim {

using nlohmann::json;
using std::chrono::steady_clock;

namespace {

// What commands print, as long as this lives.
class PrintedText {
 public:
  // `current` names it meanwhile.
  explicit PrintedText(std::ostream*& current)
      : usual_(std::cout.rdbuf(text_.rdbuf())), current_(current) {
    current_ = &text_;
  }
  ~PrintedText() {
    std::cout.rdbuf(usual_);
    current_ = nullptr;
  }
  PrintedText(const PrintedText&) = delete;
  PrintedText& operator=(const PrintedText&) = delete;

  std::string take() const { return text_.str(); }

 private:
  std::ostringstream text_;
  std::streambuf* usual_;
  std::ostream*& current_;
};

const char* nameOf(Stage stage) {
  switch (stage) {
    case Stage::setup:
      return "setup";
    case Stage::running:
      return "running";
    case Stage::booted:
      return "booted";
    case Stage::any:
      return "any";
  }
  return "any";
}

}  // namespace

json ServedPhone::answer(const json& request) {
  const auto what = request.at("ask").get<std::string>();
  const auto number = [&request](const char* name) -> std::optional<double> {
    const auto found = request.find(name);
    return found == request.end() || found->is_null() ? std::nullopt
                                                      : std::optional(found->get<double>());
  };
  if (what == "snapshot") return snapshot();
  if (what == "command") return command(request.at("lines").get<std::vector<std::string>>());
  if (what == "commands") return commands();
  if (what == "setup") return setup();
  if (what == "uptime") return session_.phone.clock.uptime();
  if (what == "settings") return settings_.list();
  if (what == "heritage")
    return {{"settings",
             session_.state == HostState::running ? settings_.changedLines() : job_.settings},
            {"uptime", session_.phone.clock.uptime()},
            {"serve", asJson(state_)}};
  if (what == "script") return script();
  if (what == "step script") {
    const auto lines = number("lines");
    return stepScript(lines ? std::optional(long(*lines)) : std::nullopt);
  }
  if (what == "close script") return closeScript();
  if (what == "check script") {
    requireCommands(request.at("text").get<std::string>());
    return nullptr;
  }
  if (what == "views") {
    catchUp();
    const auto x = number("x"), y = number("y");
    return viewsOnScreen(x && y ? std::optional(CGPoint{*x, *y}) : std::nullopt);
  }
  if (what != "time") throw RequestError(400, "the phone knows no " + what);
  TimeChange change{number("speed"),   std::nullopt, request.value("step", false),
                    number("advance"), number("to"), number("beforeEnd")};
  if (const auto paused = request.find("paused"); paused != request.end())
    change.paused = paused->get<bool>();
  return changeTime(change);
}

json ServedPhone::command(const std::vector<std::string>& lines) {
  catchUp();
  leaveScript();
  const PrintedText printed(printed_);
  const auto refuse = [this](const std::exception& error, std::size_t column) {
    return RequestError(400, error.what(), {{"line", ran_ + 1}, {"column", column}, {"ran", ran_}});
  };
  ran_ = 0;
  for (const std::string& line : lines) {
    try {
      play(line);
    } catch (const ScriptParseError& error) {
      throw refuse(error, error.column);
    } catch (const ScriptError& error) {
      throw refuse(error, error.column);
    }
    ++ran_;
  }
  return {
      {"ok", true}, {"uptime", seconds(session_.phone.clock.uptime())}, {"output", printed.take()}};
}

json ServedPhone::commands() const {
  json all = json::array();
  for (const auto& [name, command] : table_.all())
    all.push_back({{"name", name},
                   {"usage", command.usage},
                   {"example", command.example},
                   {"help", command.help},
                   {"stage", nameOf(command.stage)}});
  return all;
}

json ServedPhone::changeTime(const TimeChange& change) {
  catchUp();
  // Where to is found out first: a wrong wish changes nothing.
  const Nanoseconds uptime = destination(change);
  if (uptime > latestUptime)
    throw RequestError(409, "time goes no further than 100 years after the phone's start");
  if (uptime > session_.phone.clock.uptime()) jumpTo(uptime);
  const Moment now = steady_clock::now();
  if (change.speed) pace_.setSpeed(*change.speed, now);
  if (change.paused) pace_.setPaused(*change.paused, now);
  state_.speed = pace_.speed();
  state_.paused = pace_.isPaused();
  report_.demand("clock");
  mustSave_ = true;
  return clockPart();
}

Nanoseconds ServedPhone::destination(const TimeChange& change) {
  const Nanoseconds now = session_.phone.clock.uptime();
  const bool jumps = change.step || change.advance || change.to || change.beforeEnd;
  if (!jumps) return now;
  if (session_.state == HostState::off) throw RequestError(409, "time passes only after boot");
  if (change.advance) return deadline(now, nanoseconds(*change.advance));
  if (change.to) {
    if (nanoseconds(*change.to) < now)
      throw RequestError(409, "time only moves forward: it is " + secondsText(now) + " already");
    return nanoseconds(*change.to);
  }
  if (change.step) {
    const auto due = session_.phone.queue.nextDue();
    if (!due) throw RequestError(409, "nothing is due");
    return *due;
  }
  if (const json end = timer_.now(settings_.values()).at("endsAt"); !end.is_null())
    return std::max(now, nanoseconds(end.get<double>() - *change.beforeEnd));
  throw RequestError(409, "no timer runs that ends at a certain time");
}

void ServedPhone::jumpTo(Nanoseconds uptime) {
  leaveScript();
  ran_ = 0;
  changed_ = mustSave_ = true;
  progressed_ = steady_clock::now();
  try {
    advanceTo(uptime);
  } catch (const Interrupted& error) {
    rebase();
    throw RequestError(409, error.what());
  }
  rebase();
}

json ServedPhone::snapshot() {
  report_.tell([this](const std::string& event, const json& data) {
    send({{"event", event}}, eventText(event, data));
  });
  return report_.snapshot();
}

}  // namespace sim
