// What stands on the screen, for who looks inside.
#include <charconv>
#include <cmath>

#include "simulator/serve/Api.h"

namespace sim {
namespace {

using nlohmann::json;

constexpr double farthest = 10'000;  // points

json coordinate(const Router::Visit& visit, const char* name) {
  if (!visit.request.has_param(name)) return nullptr;
  const std::string text = visit.request.get_param_value(name);
  double value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size() || !(std::abs(value) < farthest))
    throw RequestError(400, std::string("expected ") + name + ", in points");
  return value;
}

}  // namespace

void addViewRoutes(Router& router, const ApiParts& parts) {
  router.addText("GET", "/api/views", [&inbox = parts.inbox](const Router::Visit& visit) {
    const json x = coordinate(visit, "x"), y = coordinate(visit, "y");
    if (x.is_null() != y.is_null()) throw RequestError(400, "expected both x and y, or neither");
    return inbox.askHost("views", {{"x", x}, {"y", y}});
  });
}

}  // namespace sim
