#include "simulator/serve/Api.h"
#include "simulator/serve/JsonBody.h"
#include "simulator/serve/Pace.h"
#include "simulator/serve/Report.h"
#include "simulator/serve/Supervisor.h"
#include "simulator/serve/http/Guard.h"

namespace sim {

using nlohmann::json;

namespace {

constexpr double longestJump = 366 * 86400.0;  // seconds
constexpr std::size_t pieceSize = std::size_t(64) * 1024;

std::vector<std::string> linesFrom(const std::string& text) {
  const JsonBody body(text, {"line", "lines"});
  if (body.has("line") == body.has("lines"))
    throw RequestError(400, "expected either line or lines");
  if (body.has("lines")) return body.lines("lines");
  std::string line = body.text("line", largestBody);
  if (line.find_first_of("\r\n") != std::string::npos)
    throw RequestError(400, "expected a line without line breaks: use lines");
  return {std::move(line)};
}

// Read strictly here; what is left out stays so.
json timeChangeFrom(const std::string& text) {
  const JsonBody body(text, {"speed", "paused", "step", "advance", "to", "beforeEnd"});
  json change = json::object();
  const auto add = [&change](const char* name, const auto& value) {
    if (value) change[name] = *value;
  };
  add("speed", body.number("speed", Pace::slowest, Pace::fastest));
  add("paused", body.flag("paused"));
  if (body.flag("step").value_or(false)) change["step"] = true;
  add("advance", body.number("advance", 0, longestJump));
  add("to", body.number("to", 0, 1e6 * 86400));
  add("beforeEnd", body.number("beforeEnd", 0, longestJump));
  const std::size_t jumps = change.size() - change.count("speed") - change.count("paused");
  if (jumps > 1) throw RequestError(400, "expected one of step, advance, to and beforeEnd");
  return change;
}

Supervisor::Help helpFrom(const std::string& text) {
  const JsonBody body(text, {"do"});
  const std::string word = body.word("do", {"kill", "sample", "interrupt", "forget"}, "");
  if (word == "kill") return Supervisor::Help::kill;
  if (word == "sample") return Supervisor::Help::sample;
  return word == "forget" ? Supervisor::Help::forget : Supervisor::Help::interrupt;
}

// However long it is, it is sent as it is read.
void answerJournal(const Router::Visit& visit, int descriptor) {
  const auto journal = std::make_shared<JournalFile>(descriptor);
  visit.response.set_chunked_content_provider(
      "application/json", [journal](std::size_t, httplib::DataSink& sink) {
        std::string piece = "[";
        std::size_t index = 0;
        bool isWanted = true;
        journal->visit(0, [&](const JournalEntry& entry) {
          piece += (index > 0 ? "," : "") + jsonText(asJson(entry, index));
          ++index;
          if (piece.size() < pieceSize) return true;
          isWanted = sink.write(piece.data(), piece.size());
          piece.clear();
          return isWanted;
        });
        piece += ']';
        if (!isWanted || !sink.write(piece.data(), piece.size())) return false;
        sink.done();
        return true;
      });
}

}  // namespace

void addPhoneRoutes(Router& router, const ApiParts& parts) {
  Inbox& inbox = parts.inbox;
  router.addText("POST", "/api/command", [&inbox](const Router::Visit& visit) {
    return inbox.askHost("command", {{"lines", linesFrom(visit.request.body)}});
  });
  router.addText("POST", "/api/time", [&inbox](const Router::Visit& visit) {
    return inbox.askHost("time", timeChangeFrom(visit.request.body));
  });
  for (const char* what : {"commands", "setup", "settings"})
    router.addText("GET", std::string("/api/") + what, [&inbox, what](const Router::Visit&) {
      return inbox.askHost(what, json::object());
    });
  router.addText("POST", "/api/setup", [&inbox](const Router::Visit& visit) {
    const JsonBody body(visit.request.body, {"lines", "settings"});
    const auto lines = body.lines("lines");
    const bool keeps = body.word("settings", {"keep", "default"}, "keep") == "keep";
    return inbox.ask([&lines, keeps](Supervisor& supervisor, const Inbox::Promise& promise) {
      supervisor.makePhone(lines, keeps, promise);
    });
  });
  router.addText("POST", "/api/life", [&inbox](const Router::Visit& visit) {
    const Supervisor::Help how = helpFrom(visit.request.body);
    return inbox.ask([how](Supervisor& supervisor, const Inbox::Promise& promise) {
      supervisor.help(how, promise);
    });
  });
  router.add("GET", "/api/journal", [&inbox](const Router::Visit& visit) {
    const std::string descriptor =
        inbox.ask([](Supervisor& supervisor, const Inbox::Promise& promise) {
          answer(promise, std::to_string(supervisor.journalDescriptor()));
        });
    answerJournal(visit, std::stoi(descriptor));
  });
}

}  // namespace sim
