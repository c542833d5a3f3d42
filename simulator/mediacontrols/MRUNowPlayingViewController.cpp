#include "simulator/mediacontrols/MRUNowPlayingViewController.h"

#include <cmath>
#include <utility>

#include "simulator/foundation/Kind.h"
#include "simulator/foundation/NSNotificationCenter.h"
#include "simulator/foundation/Values.h"
#include "simulator/mediacontrols/MRUEmbeddingView.h"
#include "simulator/mediacontrols/MRUNowPlayingTimeControl.h"
#include "simulator/mediacontrols/MRUNowPlayingTransportControlsView.h"
#include "simulator/mediacontrols/MRUNowPlayingView.h"
#include "simulator/mediacontrols/ModuleVersion.h"
#include "simulator/mediaremote/AudioSystem.h"
#include "simulator/mediaremote/NowPlaying.h"
#include "simulator/mediaremote/Player.h"
#include "simulator/radios/Radios.h"
#include "simulator/standin/StandIn.h"
#include "simulator/uikit/views/ViewBuilding.h"

namespace sim {
namespace {

using objc::Object;
using Controller = MRUNowPlayingViewController;

void showTrack(Object labels) {
  const Track* track = Player::current().track();
  const Object title = track == nullptr ? string("Not Playing")
                       : track->title   ? string(*track->title)
                                        : Object();
  const bool hasArtist = track != nullptr && !track->artist.empty();
  objc::send<void, "setTitle:">(labels, title);
  objc::send<void, "setArtist:">(labels, hasArtist ? string(track->artist) : Object());
}

// Active while sound goes to another device.
void showRoute(Object routingButton) {
  const bool isElsewhere = !Radios::current().peers().empty();
  if (objc::send<bool, "isActive">(routingButton) != isElsewhere)
    objc::send<void, "setActive:">(routingButton, isElsewhere);
}

void previousTrack(Object, Object) {
  Player::current().previousTrack();
}
void togglePlayPause(Object, Object) {
  Player::current().togglePlayPause();
}
void nextTrack(Object, Object) {
  Player::current().nextTrack();
}

// Whoever drags the slider sees the volume there and needs no indicator.
void changeVolume(Object, Object slider) {
  AudioSystem& sound = AudioSystem::current();
  const bool wasSuppressed = sound.isIndicatorSuppressed();
  sound.setIndicatorSuppressed(true);
  sound.setVolume(objc::send<float, "value">(slider));
  sound.setIndicatorSuppressed(wasSuppressed);
}

void nowPlayingInfoDidChange(Object self, Object) {
  Controller::of(self).update();
}

objc::Strong<Object> makeRoutes() {
  return objc::adopt(objc::send<Object, "new">(objc_getClass("MRURoutingViewController")));
}

}  // namespace

Object Controller::initWithNibName_bundle(Object name, Object bundle) {
  if (!isModuleOf16()) routingViewController = makeRoutes();
  return super<Object, "initWithNibName:bundle:">(name, bundle);
}

void Controller::loadView() {
  const auto made = objc::adopt(objc::send<Object, "new">(objc_getClass("MRUNowPlayingView")));
  objc::send<void, "setLayout:">(made.get(), layout);
  objc::send<void, "setView:">(self(), made.get());
}

void Controller::viewDidLoad() {
  super<void, "viewDidLoad">();
  connectControls();
  if (isModuleOf16())
    makeRoutesLater();
  else
    objc::send<void, "setEmbeddedViewController:">(
        objc::send<Object, "collapsedEmbeddingView">(moduleView()), routingViewController.get());
  update();
}

void Controller::connectControls() {
  const MRUNowPlayingView* view = stateOf<MRUNowPlayingView>(moduleView());
  if (view == nullptr) return;
  const Object me(self());
  addTapTarget(objc::send<Object, "routingButton">(view->headerView.get()), me,
               objc::selector<"didSelectRoutingButton:">());
  const Object transport = view->transportControlsView;
  addTapTarget(objc::send<Object, "previousButton">(transport), me,
               objc::selector<"_didSelectPreviousButton:">());
  addTapTarget(objc::send<Object, "playPauseButton">(transport), me,
               objc::selector<"_didSelectPlayPauseButton:">());
  addTapTarget(objc::send<Object, "nextButton">(transport), me,
               objc::selector<"_didSelectNextButton:">());
  if (isModuleOf16()) objc::send<void, "setDelegate:">(transport, me);
  constexpr unsigned long valueChanged = 1 << 12;
  objc::send<void, "addTarget:action:forControlEvents:">(
      view->volumeSlider.get(), me, objc::selector<"_volumeSliderValueChanged:">(), valueChanged);
}

// Off the screen nobody needs to know what plays.
void Controller::viewWillAppear(bool animated) {
  super<void, "viewWillAppear:">(animated);
  observeNowPlayingInfo(Object(self()));
  if (volumeObserver == 0)
    volumeObserver = AudioSystem::current().observe([this] { showVolume(); });
  update();
}

// Only now it is in a window, and its time goes by.
void Controller::viewDidAppear(bool animated) {
  super<void, "viewDidAppear:">(animated);
  showTime();
}

void Controller::viewDidDisappear(bool animated) {
  super<void, "viewDidDisappear:">(animated);
  objc::send<void, "removeObserver:">(notificationCenter(), Object(self()));
  stopWatching();
}

Object Controller::moduleView() const {
  return objc::send<Object, "viewIfLoaded">(self());
}

void Controller::setLayout(long chosen) {
  layout = chosen;
  const Object view = moduleView();
  objc::send<void, "setLayout:">(view, chosen);
  animateLayout(view);
}

void Controller::didSelectRoutingButton(Object sender) {
  if (isModuleOf16()) return presentRoutingControls(sender);
  const bool opens = layout != routingLayout;
  if (opens) layoutBeforeRouting = layout;
  if (opens) showEmbedded();
  objc::send<void, "setLayout:">(self(), opens ? routingLayout : layoutBeforeRouting);
  objc::send<void, "nowPlayingViewControllerDidChangeLayout:">(itsDelegate(), Object(self()));
}

// Whoever shows the player decides how it comes to its layout.
void Controller::presentRoutingControls(Object) {
  objc::send<void, "nowPlayingViewController:applyLayout:">(
      itsDelegate(), Object(self()),
      long(layout == routingLayout ? expandedLayout : routingLayout));
}

void Controller::didSelectRoutingButtonOf(Object, Object button) {
  objc::send<void, "presentRoutingControlsFromSourceView:">(self(), button);
}

void Controller::makeRoutesLater() {
  Phone::current().queue.addNow([player = objc::retain(Object(self()))] {
    objc::send<void, "setRoutingViewController:">(player.get(), makeRoutes().get());
  });
}

void Controller::setRoutingViewController(Object controller) {
  if (routingViewController) {
    objc::send<void, "willMoveToParentViewController:">(routingViewController.get(), nullptr);
    objc::send<void, "removeFromParentViewController">(routingViewController.get());
  }
  routingViewController = objc::retain(controller);
  if (!controller) return;
  const Object me(self());
  objc::send<void, "addChildViewController:">(me, controller);
  objc::send<void, "setContentView:">(moduleView(), objc::send<Object, "view">(controller));
  objc::send<void, "didMoveToParentViewController:">(controller, me);
}

// What was shown before, and what somebody has shown there already, stays as it is.
void Controller::showEmbedded() {
  const Object embedding = objc::send<Object, "collapsedEmbeddingView">(moduleView());
  const MRUEmbeddingView* state = stateOf<MRUEmbeddingView>(embedding);
  if (state != nullptr && !state->isShowing()) objc::send<void, "showViewController">(embedding);
}

void Controller::update() {
  const MRUNowPlayingView* view = stateOf<MRUNowPlayingView>(moduleView());
  if (view == nullptr) return;
  const Object header = view->headerView;
  showTrack(objc::send<Object, "labelView">(header));
  objc::send<void, "setNeedsLayout">(header);
  if (auto* transport =
          stateOf<MRUNowPlayingTransportControlsView>(view->transportControlsView.get()))
    transport->setPlaying(Player::current().isPlaying());
  if (!isModuleOf16()) showRoute(objc::send<Object, "routingButton">(header));
  showVolume();
  showTime();
}

void Controller::showVolume() {
  objc::send<void, "setValue:">(MRUNowPlayingView::of(moduleView()).volumeSlider.get(),
                                AudioSystem::current().volume());
}

void Controller::showTime() {
  stopClock();
  const Player& player = Player::current();
  const Track* track = player.track();
  const MRUNowPlayingView& view = MRUNowPlayingView::of(moduleView());
  if (auto* line = stateOf<MRUNowPlayingTimeControl>(view.timeControl.get()))
    line->show(player.position(), track != nullptr ? seconds(track->length) : 0);
  if (!player.isPlaying() || !objc::send<Object, "window">(moduleView())) return;
  Phone& phone = Phone::current();
  const double untilNext = std::floor(player.position()) + 1 - player.position();
  nextSecond = phone.queue.add(phone.clock.uptime() + nanoseconds(untilNext), [this] {
    nextSecond = 0;
    showTime();
  });
}

void Controller::stopClock() {
  if (nextSecond != 0) Phone::current().queue.cancel(std::exchange(nextSecond, 0));
}

void Controller::stopWatching() {
  stopClock();
  if (volumeObserver != 0) AudioSystem::current().forget(std::exchange(volumeObserver, 0));
}

void Controller::registerClass() {
  StandIn<Controller>("MediaControls", "MRUNowPlayingViewController", "UIViewController")
      .partial<"initWithNibName:bundle:", &Controller::initWithNibName_bundle>(
          "a phone makes it for an endpoint and with a way to show the routes; before 16 the "
          "routes "
          "are there from the start")
      .readonlyProperty<"routingViewController", &Controller::routingViewController>()
      .method<"delegate", &Controller::itsDelegate>()
      .method<"setDelegate:", &Controller::setDelegate>()
      .method<"loadView", &Controller::loadView>()
      .method<"viewDidLoad", &Controller::viewDidLoad>()
      .method<"viewWillAppear:", &Controller::viewWillAppear>()
      .method<"viewDidAppear:", &Controller::viewDidAppear>()
      .method<"viewDidDisappear:", &Controller::viewDidDisappear>()
      .readonlyProperty<"layout", &Controller::layout>()
      .method<"setLayout:", &Controller::setLayout>()
      .partial<"didSelectRoutingButton:", &Controller::didSelectRoutingButton>(
          "before 16 at once, and closing goes back to the layout of before, where a phone expands "
          "the module first and stays expanded; never the system's sheet")
      .partial<"presentRoutingControlsFromSourceView:", &Controller::presentRoutingControls>(
          "never the system's sheet")
      .method<"transportControlsView:didSelectRoutingButton:",
              &Controller::didSelectRoutingButtonOf>()
      .partial<"setRoutingViewController:", &Controller::setRoutingViewController>(
          "once, where a phone does it again for each device that is chosen")
      .method<"_didSelectPreviousButton:", &previousTrack>()
      .method<"_didSelectPlayPauseButton:", &togglePlayPause>()
      .method<"_didSelectNextButton:", &nextTrack>()
      .method<"_volumeSliderValueChanged:", &changeVolume>()
      .method<"_nowPlayingInfoDidChange:", &nowPlayingInfoDidChange>()
      .finish();
}

}  // namespace sim
