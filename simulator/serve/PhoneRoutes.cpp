#include "simulator/serve/Api.h"
#include "simulator/serve/JsonBody.h"
#include "simulator/serve/ServedPhone.h"
#include "simulator/serve/http/Guard.h"

namespace sim {

using nlohmann::json;

namespace {

constexpr double longestJump = 366 * 86400.0;  // seconds

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

ServedPhone::TimeChange timeChangeFrom(const std::string& text) {
  const JsonBody body(text, {"speed", "paused", "step", "advance", "to", "beforeEnd"});
  ServedPhone::TimeChange change;
  change.speed = body.number("speed", Pace::slowest, Pace::fastest);
  change.paused = body.flag("paused");
  change.step = body.flag("step").value_or(false);
  change.advance = body.number("advance", 0, longestJump);
  change.to = body.number("to", 0, 1e6 * 86400);
  change.beforeEnd = body.number("beforeEnd", 0, longestJump);
  const int jumps = int(change.step) + int(change.advance.has_value()) +
                    int(change.to.has_value()) + int(change.beforeEnd.has_value());
  if (jumps > 1) throw RequestError(400, "expected one of step, advance, to and beforeEnd");
  return change;
}

}  // namespace

void addPhoneRoutes(Router& router, const ApiParts& parts) {
  Inbox& inbox = parts.inbox;
  router.addJson("POST", "/api/command", [&inbox](const Router::Visit& visit) {
    const auto lines = linesFrom(visit.request.body);
    return inbox.ask([&lines](ServedPhone& phone) { return phone.command(lines); });
  });
  router.addJson("GET", "/api/commands", [&inbox](const Router::Visit&) {
    return inbox.ask([](ServedPhone& phone) { return phone.commands(); });
  });
  router.addJson("POST", "/api/time", [&inbox](const Router::Visit& visit) {
    const auto change = timeChangeFrom(visit.request.body);
    return inbox.ask([&change](ServedPhone& phone) { return phone.changeTime(change); });
  });
  router.addJson("GET", "/api/setup", [&inbox](const Router::Visit&) {
    return inbox.ask([](ServedPhone& phone) { return phone.setup(); });
  });
  router.addJson(
      "POST", "/api/setup", [&inbox, check = parts.checkSetup](const Router::Visit& visit) {
        const JsonBody body(visit.request.body, {"lines", "settings"});
        const auto lines = body.lines("lines");
        const bool keeps = body.word("settings", {"keep", "default"}, "keep") == "keep";
        check(lines);
        return inbox.ask(
            [&lines, keeps](ServedPhone& phone) { return phone.makeAnew(lines, keeps); });
      });
  router.addJson("GET", "/api/settings", [&inbox](const Router::Visit&) {
    return inbox.ask([](ServedPhone& phone) { return phone.settings(); });
  });
  router.addJson("GET", "/api/journal", [&inbox](const Router::Visit&) {
    return inbox.ask([](ServedPhone& phone) { return phone.journal(); });
  });
}

}  // namespace sim
