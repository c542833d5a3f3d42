#include "simulator/uikit/application/PreRender.h"

#include <vector>

#include "simulator/machine/Phone.h"

namespace sim {
namespace {

struct PreRenderHooks {
  std::vector<std::function<void()>> all;
};

auto& hooks() {
  return Phone::current().state<PreRenderHooks>().all;
}

}  // namespace

void addPreRenderHook(std::function<void()> update) {
  hooks().push_back(std::move(update));
}

void runPreRenderHooks() {
  for (const auto& update : hooks()) update();
}

}  // namespace sim
