#include "simulator/springboard/SpringBoard.h"

#include "simulator/machine/Phone.h"
#include "simulator/springboard/HomeScreen.h"
#include "simulator/springboard/StatusBar.h"
#include "simulator/standin/Registration.h"
#include "simulator/standin/StandIn.h"

namespace sim {

void SpringBoard::applicationDidFinishLaunching(objc::Object) {
  Phone::current().journal.record("-[SpringBoard applicationDidFinishLaunching:]");
}

void SpringBoard::registerClass() {
  StandIn<SpringBoard>("SpringBoard", "SpringBoard", "UIApplication")
      .partial<"applicationDidFinishLaunching:", &SpringBoard::applicationDidFinishLaunching>(
          "of all applications only Settings can be opened")
      .finish();
}

void launchSpringBoard() {
  const objc::AutoreleasePool pool;
  const auto application = SpringBoard::make();  // becomes the shared application, which lives on
  showHomeScreen();
  showStatusBar();
  objc::send<void, "applicationDidFinishLaunching:">(application.get(), application.get());
}

}  // namespace sim
