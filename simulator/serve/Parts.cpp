// What pages are told of the phone.
#include "simulator/controlcenter/ControlCenter.h"
#include "simulator/controlcenter/Switches.h"
#include "simulator/coversheet/LockScreen.h"
#include "simulator/foundation/Kind.h"
#include "simulator/preferences/PreferencesApp.h"
#include "simulator/radios/Radios.h"
#include "simulator/serve/ServedPhone.h"
#include "simulator/springboard/SBBacklightController.h"
#include "simulator/uikit/application/UIApplication.h"

namespace sim {

using nlohmann::json;
using std::chrono::steady_clock;

namespace {

constexpr double referenceDateIn1970 = 978'307'200;

const char* nameOf(HostState state) {
  switch (state) {
    case HostState::off:
      return "off";
    case HostState::running:
      return "running";
    case HostState::dead:
      return "dead";
  }
  return "off";
}

const char* orientation() {
  const auto* application = stateOf<UIApplication>(UIApplication::sharedApplication());
  switch (application == nullptr ? UIApplication::portrait : application->orientation) {
    case UIApplication::upsideDown:
      return "upside-down";
    case UIApplication::landscapeRight:
      return "landscape-right";
    case UIApplication::landscapeLeft:
      return "landscape-left";
    default:
      return "portrait";
  }
}

// Asked of the stand-ins themselves: no message is sent that an extension might answer.
bool isScreenOn(const Session& session) {
  if (session.state != HostState::running) return true;
  if (!session.phone.setup.hasClass("SBBacklightController")) return true;
  return SBBacklightController::of(SBBacklightController::sharedInstance()).screenIsOn();
}

bool isLocked(const Session& session) {
  return session.state == HostState::running && LockScreen::current().isLocked();
}

}  // namespace

void ServedPhone::addParts() {
  report_.addOnDemandPart("clock", [this] { return clockPart(); });
  report_.addPart("phone", [this] { return phonePart(); });
  report_.addPart("player", [this] { return player_.now(); });
  report_.addPart("script", [this] { return scriptPart(); });
  report_.addPart("pictures", [this] { return asJson(state_.pictures); });
  report_.addPart("setup", [this] { return setup(); });
  report_.addPart("timer", [this] { return timer_.now(settings_.values()); });
  report_.addMemberwisePart("settings", [this] { return settings_.values(); });
}

json ServedPhone::clockPart() const {
  const Clock& clock = session_.phone.clock;
  // While the phone sleeps its clock stands; the time that pages go on from must be of now.
  const Nanoseconds uptime = session_.state == HostState::off
                                 ? clock.uptime()
                                 : std::max(clock.uptime(), pace_.uptimeAt(steady_clock::now()));
  return {{"uptime", seconds(uptime)},
          {"wall", clock.wallAtZero() + seconds(uptime) + referenceDateIn1970},
          {"speed", pace_.speed()},
          {"paused", pace_.isPaused() || session_.state == HostState::off}};
}

json ServedPhone::phonePart() const {
  return {{"host", nameOf(session_.state)},
          {"screenOn", isScreenOn(session_)},
          {"locked", isLocked(session_)},
          {"controlCenter", session_.state == HostState::running && bool(openedControlCenter())},
          {"settings", session_.state == HostState::running && PreferencesApp::current().isOpen()},
          {"brightness", session_.state == HostState::running ? brightness() : standardBrightness},
          {"peers", Radios::current().peers().size()},
          {"due", session_.state != HostState::off && session_.phone.queue.nextDue().has_value()},
          {"orientation", session_.state == HostState::running ? orientation() : "portrait"}};
}

json ServedPhone::setup() const {
  const Setup& setup = session_.phone.setup;
  return {{"lines", job_.setup},
          {"ios", setup.systemVersion},
          {"locale", setup.locale},
          {"haptics", setup.feedbackSupportLevel},
          {"process", setup.processName},
          {"missingClasses", setup.missingClasses},
          {"missingMethods", setup.missingMethods}};
}

}  // namespace sim
