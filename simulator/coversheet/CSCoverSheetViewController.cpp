#include "simulator/coversheet/CSCoverSheetViewController.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <utility>

#include "simulator/StandIn.h"
#include "simulator/coversheet/CSMediaControlsViewController.h"
#include "simulator/foundation/Values.h"
#include "simulator/mediaremote/NowPlaying.h"
#include "simulator/mediaremote/Player.h"
#include "simulator/uikit/ViewBuilding.h"

namespace sim {
namespace {

using objc::Object;
using Controller = CSCoverSheetViewController;

Object notificationCenter() {
  return objc::send<Object, "defaultCenter">(objc_getClass("NSNotificationCenter"));
}

Object viewOf(Object controller) {
  return objc::send<Object, "view">(controller);
}

void nowPlayingInfoDidChange(Object self, Object) {
  Controller::of(self).updateMediaControls();
}

Object clockTime(double wall) {
  constexpr double day = 86400;
  const long minute = long(std::floor((wall - std::floor(wall / day) * day) / 60));
  std::array<char, 16> text;
  std::snprintf(text.data(), text.size(), "%ld:%02ld", minute / 60, minute % 60);
  return string(text.data());
}

}  // namespace

void Controller::viewDidLoad() {
  constexpr long centred = 1;
  super<void, "viewDidLoad">();
  const Object view = viewOf(Object(self()));
  fill(view, rgbColor(0.07, 0.09, 0.2));
  timeLabel = addLabel(view, {.points = 76, .alignment = centred});
  objc::send<void, "addSubview:">(view, dateView.get());
}

void Controller::setDateView(Object view) {
  dateView = objc::retain(view);
}

void Controller::viewWillAppear(bool animated) {
  super<void, "viewWillAppear:">(animated);
  objc::send<void, "addObserver:selector:name:object:">(
      notificationCenter(), Object(self()), objc::selector<"_nowPlayingInfoDidChange:">(),
      Object(kMRMediaRemoteNowPlayingInfoDidChangeNotification), nullptr);
  updateMediaControls();
  showTime();
}

void Controller::viewDidDisappear(bool animated) {
  super<void, "viewDidDisappear:">(animated);
  objc::send<void, "removeObserver:">(notificationCenter(), Object(self()));
  stopClock();
}

void Controller::updateMediaControls() {
  const bool plays = Player::current().track() != nullptr;
  if (plays == bool(mediaControlsViewController)) return;
  if (plays) {
    mediaControlsViewController = CSMediaControlsViewController::make();
    addChildController(Object(self()), mediaControlsViewController);
  } else {
    removeChildController(std::exchange(mediaControlsViewController, nullptr));
  }
}

void Controller::viewWillLayoutSubviews() {
  super<void, "viewWillLayoutSubviews">();
  // Points.
  constexpr double top = 70, clockHeight = 92, margin = 16, playerTop = 250, playerHeight = 236;
  const CGSize size = sizeOf(viewOf(Object(self())));
  const double clockTop = std::min(top, size.height / 8);
  setFrame(timeLabel, {{0, clockTop}, {size.width, clockHeight}});
  const CGSize line = sizeOf(dateView);
  setFrame(dateView, {{(size.width - line.width) / 2, clockTop + clockHeight}, line});
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
  setText(timeLabel, clockTime(wall));
  // The line below may have changed its length meanwhile.
  objc::send<void, "setNeedsLayout">(viewOf(Object(self())));
  const double untilNext = (std::floor(wall / 60) + 1) * 60 - wall;
  nextMinute = phone.queue.add(phone.clock.uptime() + nanoseconds(untilNext), [this] {
    nextMinute = 0;
    showTime();
  });
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
