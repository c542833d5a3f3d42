#include "simulator/springboard/VolumeDisplay.h"

#include <utility>

#include "objc/Message.h"
#include "simulator/foundation/Values.h"
#include "simulator/machine/Phone.h"
#include "simulator/mediaremote/AudioSystem.h"
#include "simulator/springboard/Shapes.h"
#include "simulator/uikit/application/PreRender.h"
#include "simulator/uikit/application/UIScreen.h"
#include "simulator/uikit/application/UIWindow.h"
#include "simulator/uikit/views/ViewBuilding.h"

namespace sim {
namespace {

using objc::Object;
using objc::Strong;

constexpr CGSize displaySize = {46, 152};             // points
constexpr double displayLeft = 14, displayTop = 184;  // upright
constexpr double shownSeconds = 1.5, fadingSeconds = 0.3;

// Made with the host, so that a change of the volume leaves no object behind.
struct VolumeDisplay {
  Object window;               // UIWindow; owned, and never given up
  Strong<Object> view, level;  // UIView
  MainQueue::Ticket next = 0;  // of the end of showing, then of the end of fading
};

VolumeDisplay& display() {
  return Phone::current().state<VolumeDisplay>();
}

void after(double time, void (*does)()) {
  Phone& phone = Phone::current();
  phone.queue.cancel(std::exchange(display().next, 0));
  display().next = phone.queue.add(phone.clock.uptime() + nanoseconds(time), [does] {
    display().next = 0;
    does();
  });
}

void hideVolume() {
  objc::send<void, "setHidden:">(display().window, true);
}

void fadeVolume() {
  changeAnimated(fadingSeconds, [] { setAlpha(display().view, 0); });
  after(fadingSeconds, hideVolume);
}

void place() {
  const CGSize screen = UIScreen::size();
  const double y =
      screen.height > screen.width ? displayTop : (screen.height - displaySize.height) / 2;
  setFrame(display().window, {{displayLeft, y}, displaySize});
}

void showVolume() {
  const AudioSystem& sound = AudioSystem::current();
  if (sound.isIndicatorSuppressed()) return;
  place();
  const double height = displaySize.height * double(sound.volume());
  setFrame(display().level, {{0, displaySize.height - height}, {displaySize.width, height}});
  setAlpha(display().view, 1);
  objc::send<void, "setHidden:">(display().window, false);
  after(shownSeconds, fadeVolume);
}

void makeSpeaker(Object view) {
  constexpr double side = 30, fromBottom = 34;  // points
  const auto place = addView(view, "UIView");
  setFrame(place,
           {{(displaySize.width - side) / 2, displaySize.height - fromBottom}, {side, side}});
  addShapeLayer(objc::send<Object, "layer">(place.get()),
                "M 7 12 L 11 12 L 16 8 L 16 22 L 11 18 L 7 18 Z",
                {coreColor({110, 110, 116}), nullptr});
}

}  // namespace

void followVolume() {
  constexpr double windowLevel = 1098;  // above Control Center and the status bar, below alerts
  if (UIWindow::cls() == nullptr) return;
  auto window = UIWindow::make();
  UIWindow::of(window.get()).isOfTheSystem = true;
  objc::send<void, "setWindowLevel:">(window.get(), windowLevel);
  objc::send<void, "setUserInteractionEnabled:">(window.get(), false);
  auto& its = display();
  its.view = addView(window.get(), "UIView");
  setFrame(its.view, {{}, displaySize});
  fill(its.view, rgbColor(0.11, 0.11, 0.12, 0.8), 18);
  objc::send<void, "setClipsToBounds:">(its.view.get(), true);
  its.level = addView(its.view, "UIView");
  fill(its.level, whiteColor(0.9));
  makeSpeaker(its.view);
  its.window = window.detach();
  AudioSystem::current().observe(showVolume);
  addPreRenderHook(place);  // the phone may be turned while it shows
}

}  // namespace sim
