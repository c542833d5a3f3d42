#include "simulator/uikit/application/Looking.h"

#include <vector>

namespace sim {
namespace {

std::vector<std::function<void()>>& updates() {
  static std::vector<std::function<void()>> all;
  return all;
}

}  // namespace

void beforeLooking(std::function<void()> update) {
  updates().push_back(std::move(update));
}

void prepareForLooking() {
  for (const auto& update : updates()) update();
}

}  // namespace sim
