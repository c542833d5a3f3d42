#include "simulator/coversheet/CSCoverSheetViewController.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "simulator/coversheet/CSMediaControlsViewController.h"
#include "simulator/coversheet/CountdownText.h"
#include "simulator/foundation/LocaleText.h"
#include "simulator/foundation/NSNotificationCenter.h"
#include "simulator/foundation/Values.h"
#include "simulator/mediaremote/NowPlaying.h"
#include "simulator/mediaremote/Player.h"
#include "simulator/springboard/Shapes.h"
#include "simulator/standin/StandIn.h"
#include "simulator/standin/Versions.h"
#include "simulator/uikit/views/ViewBuilding.h"

namespace sim {
namespace {

using objc::Object;
using Controller = CSCoverSheetViewController;

Object viewOf(Object controller) {
  return objc::send<Object, "view">(controller);
}

void nowPlayingInfoDidChange(Object self, Object) {
  Controller::of(self).updateMediaControls();
}

constexpr CGSize padlockSize = {18, 26};  // points

void drawPadlock(Object layer) {
  addShapeLayer(layer, "R 0 11 18 14 3", {coreColor({255, 255, 255}), nullptr});
  addShapeLayer(layer, "M 4 12 L 4 7 C 4 -0.5 14 -0.5 14 7 L 14 12",
                {nullptr, coreColor({255, 255, 255}), 2});
}

Object light(double points) {
  constexpr double weight = -0.4;
  return objc::send<Object, "systemFontOfSize:weight:">(objc_getClass("UIFont"), points, weight);
}

}  // namespace

void Controller::viewDidLoad() {
  constexpr long centred = 1;
  super<void, "viewDidLoad">();
  const Object view = viewOf(Object(self()));
  wallpaper = addView(view, "SBFWallpaperView");
  fill(view, blackColor(1));
  padlock = addView(view, "UIView");
  drawPadlock(objc::send<Object, "layer">(padlock.get()));
  timeLabel = addLabel(view, {.points = 80, .alignment = centred});
  objc::send<void, "setFont:">(timeLabel.get(), light(80));
  countdownLabel = addLabel(view, {.points = 17, .alignment = centred});
  objc::send<void, "addSubview:">(view, dateView.get());
}

void Controller::setDateView(Object view) {
  dateView = objc::retain(view);
}

void Controller::viewWillAppear(bool animated) {
  super<void, "viewWillAppear:">(animated);
  observeNowPlayingInfo(Object(self()));
  updateMediaControls();
  showTime();
}

void Controller::viewDidDisappear(bool animated) {
  super<void, "viewDidDisappear:">(animated);
  objc::send<void, "removeObserver:">(notificationCenter(), Object(self()));
  stopClock();
}

void Controller::updateMediaControls() {
  // From 16 on the lock screen's player is another process's.
  const bool plays = Player::current().track() != nullptr && systemMajor() < 16;
  if (plays == bool(mediaControlsViewController)) return;
  if (plays) {
    mediaControlsViewController = CSMediaControlsViewController::make();
    addChildController(Object(self()), mediaControlsViewController);
  } else {
    removeChildController(std::exchange(mediaControlsViewController, nullptr).get());
  }
}

void Controller::viewWillLayoutSubviews() {
  super<void, "viewWillLayoutSubviews">();
  // Points.
  constexpr double top = 70, clockHeight = 92, margin = 16, playerTop = 250, playerHeight = 236;
  const CGSize size = sizeOf(viewOf(Object(self())));
  const double clockTop = std::min(top, size.height / 8);
  setFrame(wallpaper, {{}, size});
  setFrame(padlock, {{(size.width - padlockSize.width) / 2, clockTop - 18}, padlockSize});
  setFrame(timeLabel, {{0, clockTop}, {size.width, clockHeight}});
  const CGSize line = sizeOf(dateView);
  setFrame(dateView, {{(size.width - line.width) / 2, clockTop + clockHeight}, line});
  setFrame(countdownLabel, {{0, clockTop + clockHeight}, {size.width, 22}});
  const double width = std::min(size.width, 390.0) - 2 * margin;
  if (mediaControlsViewController)
    setFrame(viewOf(mediaControlsViewController),
             {{(size.width - width) / 2, std::min(playerTop, size.height - playerHeight - margin)},
              {width, playerHeight}});
}

void Controller::showTime() {
  stopClock();
  Phone& phone = Phone::current();
  const double wall = phone.clock.wall();
  setText(timeLabel, string(clockText(wall, phone.setup.locale)));
  // The line below may have changed its length meanwhile.
  objc::send<void, "setNeedsLayout">(viewOf(Object(self())));
  const double untilNext = (std::floor(wall / 60) + 1) * 60 - wall;
  nextMinute = phone.queue.add(phone.clock.uptime() + nanoseconds(untilNext), [this] {
    nextMinute = 0;
    showTime();
  });
}

void Controller::showCountdown(std::optional<double> secondsLeft) {
  objc::send<void, "setHidden:">(dateView.get(), secondsLeft.has_value());
  setText(countdownLabel, secondsLeft ? string(countdownText(*secondsLeft)) : Object());
}

void Controller::stopClock() {
  if (nextMinute != 0) Phone::current().queue.cancel(std::exchange(nextMinute, 0));
}

void Controller::registerClass() {
  StandIn<Controller>("CoverSheet", "CSCoverSheetViewController", "UIViewController")
      .readonlyProperty<"mediaControlsViewController", &Controller::mediaControlsViewController>()
      .method<"viewDidLoad", &Controller::viewDidLoad>()
      .method<"viewWillAppear:", &Controller::viewWillAppear>()
      .method<"viewDidDisappear:", &Controller::viewDidDisappear>()
      .partial<"viewWillLayoutSubviews", &Controller::viewWillLayoutSubviews>(
          "clock, date and player only")
      .method<"_nowPlayingInfoDidChange:", &nowPlayingInfoDidChange>()
      .finish();
}

}  // namespace sim
