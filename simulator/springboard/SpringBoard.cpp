#include "simulator/springboard/SpringBoard.h"

#include <utility>
#include <vector>

#include "simulator/machine/Phone.h"
#include "simulator/springboard/HomeScreen.h"
#include "simulator/springboard/StatusBar.h"
#include "simulator/springboard/VolumeDisplay.h"
#include "simulator/standin/Registration.h"
#include "simulator/standin/StandIn.h"

namespace sim {
namespace {

struct LaunchTasks {
  std::vector<std::function<void()>> all;
};

}  // namespace

void addLaunchTask(std::function<void()> task) {
  Phone::current().state<LaunchTasks>().all.push_back(std::move(task));
}

void SpringBoard::applicationDidFinishLaunching(objc::Object) {
  Phone::current().journal.record("-[SpringBoard applicationDidFinishLaunching:]");
  for (const auto& task : Phone::current().state<LaunchTasks>().all) task();
}

void SpringBoard::registerClass() {
  StandIn<SpringBoard>("SpringBoard", "SpringBoard", "UIApplication")
      .partial<"applicationDidFinishLaunching:", &SpringBoard::applicationDidFinishLaunching>(
          "of all applications only Settings, Clock and Music can be opened")
      .finish();
}

void launchSpringBoard() {
  const objc::AutoreleasePool pool;
  const auto application = SpringBoard::make();  // becomes the shared application, which lives on
  showHomeScreen();
  showStatusBar();
  followVolume();
  objc::send<void, "applicationDidFinishLaunching:">(application.get(), application.get());
}

}  // namespace sim
