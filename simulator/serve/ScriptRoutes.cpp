#include "simulator/serve/Api.h"
#include "simulator/serve/JsonBody.h"
#include "simulator/serve/Supervisor.h"
#include "simulator/serve/http/Guard.h"

namespace sim {

using nlohmann::json;

namespace {

constexpr std::size_t longestName = 200;
constexpr long mostSteps = 10'000;
constexpr long mostEntries = 1'000'000'000;  // or lines

// Nothing: to the end.
std::optional<long> stepsFrom(const std::string& text) {
  const JsonBody body(text, {"lines", "run"});
  const auto lines = body.wholeNumber("lines", 1, mostSteps);
  const bool runs = body.flag("run").value_or(false);
  if (lines.has_value() == runs) throw RequestError(400, "expected either lines or run");
  return lines;
}

OpenScript::Goal goalFrom(const std::string& text) {
  const JsonBody body(text, {"line", "uptime", "entry"});
  const auto whole = [&body](const char* name) -> std::optional<std::size_t> {
    const auto value = body.wholeNumber(name, 1, mostEntries);
    return value ? std::optional(std::size_t(*value)) : std::nullopt;
  };
  OpenScript::Goal goal{whole("line"), std::nullopt, whole("entry")};
  if (const auto uptime = body.number("uptime", 0, seconds(latestUptime)))
    goal.uptime = nanoseconds(*uptime);
  if (goal.line.has_value() + goal.uptime.has_value() + goal.entry.has_value() != 1)
    throw RequestError(400, "expected one of line, uptime and entry");
  return goal;
}

}  // namespace

void addScriptRoutes(Router& router, const ApiParts& parts) {
  Inbox& inbox = parts.inbox;
  router.add("GET", "/api/recording.phone", [&inbox](const Router::Visit& visit) {
    const std::string text = inbox.ask([](Supervisor& supervisor, const Inbox::Promise& promise) {
      supervisor.giveRecording(promise);
    });
    visit.response.set_header("Content-Disposition", "attachment; filename=\"recording.phone\"");
    visit.response.set_content(text, "text/plain; charset=utf-8");
  });
  router.addText("GET", "/api/script", [&inbox](const Router::Visit&) {
    return inbox.askHost("script", json::object());
  });
  router.addText("POST", "/api/script", [&inbox](const Router::Visit& visit) {
    const JsonBody body(visit.request.body, {"name", "text"});
    const std::string name = body.text("name", longestName);
    const std::string text = body.text("text", largestBody);
    inbox.askHost("check script", {{"text", text}});
    return inbox.ask([&](Supervisor& supervisor, const Inbox::Promise& promise) {
      supervisor.openScript(name, text, promise);
    });
  });
  router.addText("POST", "/api/moment", [&inbox](const Router::Visit& visit) {
    const OpenScript::Goal goal = goalFrom(visit.request.body);
    return inbox.ask([&goal](Supervisor& supervisor, const Inbox::Promise& promise) {
      supervisor.goTo(goal, promise);
    });
  });
  router.addText("DELETE", "/api/script", [&inbox](const Router::Visit&) {
    return inbox.askHost("close script", json::object());
  });
  router.addText("POST", "/api/script/step", [&inbox](const Router::Visit& visit) {
    const auto lines = stepsFrom(visit.request.body);
    return inbox.askHost("step script", {{"lines", lines ? json(*lines) : json()}});
  });
}

}  // namespace sim
