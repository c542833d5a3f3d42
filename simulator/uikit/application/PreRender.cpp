#include "simulator/uikit/application/PreRender.h"

#include <vector>

namespace sim {
namespace {

std::vector<std::function<void()>>& updates() {
  static std::vector<std::function<void()>> all;
  return all;
}

}  // namespace

void addPreRenderHook(std::function<void()> update) {
  updates().push_back(std::move(update));
}

void runPreRenderHooks() {
  for (const auto& update : updates()) update();
}

}  // namespace sim
