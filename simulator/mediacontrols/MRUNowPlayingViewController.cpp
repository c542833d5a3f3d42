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
#include "simulator/springboard/SystemNames.h"
#include "simulator/standin/StandIn.h"
#include "simulator/uikit/views/ViewBuilding.h"

namespace sim {
namespace {

using objc::Object;
using Controller = MRUNowPlayingViewController;

void showTrack(Object labels) {
  const Track* track = Player::current().track();
  const Object title = track == nullptr ? string(systemName("Not Playing"))
                       : track->title   ? string(*track->title)
                                        : Object();
  const bool hasArtist = track != nullptr && !track->artist.empty();
  objc::send<void, "setTitle:">(labels, title);
  objc::send<void, "setArtist:">(labels, hasArtist ? string(track->artist) : Object());
}

// Sound goes to the device that was connected last.
std::string routeName() {
  const auto& peers = Radios::current().peers();
  return peers.empty() ? "iPhone" : peers.back().name;
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

void changeVolume(Object, Object slider) {
  AudioSystem::current().slideVolume(objc::send<float, "value">(slider));
}

void nowPlayingInfoDidChange(Object self, Object) {
  Controller::of(self).update();
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
    objc::send<void, "embedViewController:parent:">(
        objc::send<Object, "collapsedEmbeddingView">(moduleView()), routingViewController.get(),
        Object(self()));
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
  if (routeObserver == 0)
    routeObserver = Radios::current().observe([this] {
      update();
      objc::send<void, "updateLayout">(self());
    });
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
  objc::send<void, "dismiss">(mediaControls.get());
}

Object Controller::moduleView() const {
  return objc::send<Object, "viewIfLoaded">(self());
}

void Controller::setLayout(long chosen) {
  if (layout == chosen) return;
  layout = chosen;
  const Object view = moduleView();
  if (chosen == routingLayout && !isModuleOf16()) showEmbedded();
  objc::send<void, "setLayout:">(view, chosen);
  objc::send<void, "layoutIfNeeded">(view);
}

// What was shown before, and what somebody has shown there already, stays as it is.
void Controller::showEmbedded() {
  const Object embedding = objc::send<Object, "collapsedEmbeddingView">(moduleView());
  const MRUEmbeddingView* state = stateOf<MRUEmbeddingView>(embedding);
  if (state != nullptr && !state->active) objc::send<void, "showViewController">(embedding);
}

void Controller::update() {
  const MRUNowPlayingView* view = stateOf<MRUNowPlayingView>(moduleView());
  if (view == nullptr) return;
  const Object header = view->headerView;
  const Object labels = objc::send<Object, "labelView">(header);
  showTrack(labels);
  objc::send<void, "setRoute:">(labels, string(routeName()));
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
  if (routeObserver != 0) Radios::current().forget(std::exchange(routeObserver, 0));
}

void Controller::registerClass() {
  StandIn<Controller>("MediaControls", "MRUNowPlayingViewController", "UIViewController")
      .partial<"initWithNibName:bundle:", &Controller::initWithNibName_bundle>(
          "a phone's is made for a device, and makes its routes when it needs them")
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
      .readonlyProperty<"routeControlsPresentation", &Controller::routeControlsPresentation>()
      .partial<"didSelectRoutingButton:", &Controller::didSelectRoutingButton>(
          "as later systems do; without a delegate it sets the layout itself")
      .method<"presentRoutingControlsFromSourceView:", &Controller::presentRoutingControls>()
      .method<"presentExternalRoutingControlsFromSourceView:",
              &Controller::presentExternalRoutingControls>()
      .partial<"updateLayout", &Controller::updateLayout>(
          "as later systems do, which leave the routes of whatever is connected by Bluetooth")
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
