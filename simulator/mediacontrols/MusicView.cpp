#include "simulator/mediacontrols/MusicView.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "simulator/foundation/Kind.h"
#include "simulator/foundation/Values.h"
#include "simulator/mediacontrols/MRUNowPlayingTimeControl.h"
#include "simulator/mediacontrols/MRUNowPlayingTransportControlsView.h"
#include "simulator/mediaremote/AudioSystem.h"
#include "simulator/mediaremote/Player.h"
#include "simulator/springboard/AppWindow.h"
#include "simulator/springboard/HomeIcons.h"
#include "simulator/springboard/SystemNames.h"
#include "simulator/standin/StandIn.h"
#include "simulator/uikit/controls/UIControl.h"
#include "simulator/uikit/views/ViewBuilding.h"

namespace sim {
namespace {

using objc::Object;

struct MusicApplication {
  AppWindow window;
  bool followsPlayer = false;
};

MusicApplication& music() {
  return Phone::current().state<MusicApplication>();
}

void open() {
  music().window.open("_MusicPlayerView");
  if (std::exchange(music().followsPlayer, true)) return;
  Player::current().observe([] {
    if (auto* view = stateOf<MusicView>(music().window.view())) view->update();
  });
}

}  // namespace

Object MusicView::initWithFrame(CGRect frame) {
  constexpr long centred = 1;
  constexpr unsigned long valueChanged = UIControl::valueChanged;
  const Object made = super<Object, "initWithFrame:">(frame);
  if (!made) return nullptr;
  fill(made, rgbColor(0.13, 0.1, 0.14));
  artwork = addView(made, "MRUArtworkView");
  title = addLabel(made, {.points = 22, .isBold = true, .alignment = centred});
  artist = addLabel(made, {.points = 18, .alpha = 0.6, .alignment = centred});
  timeControl = addView(made, "MRUNowPlayingTimeControl");
  transport = addView(made, "MRUNowPlayingTransportControlsView");
  volume = addView(made, "UISlider");
  const auto listen = [&](auto button, SEL action) { addTapTarget(button, made, action); };
  listen(objc::send<Object, "previousButton">(transport.get()), objc::selector<"_previous">());
  listen(objc::send<Object, "playPauseButton">(transport.get()), objc::selector<"_playPause">());
  listen(objc::send<Object, "nextButton">(transport.get()), objc::selector<"_next">());
  // That of the routes leads nowhere here.
  if (const auto* buttons = stateOf<MRUNowPlayingTransportControlsView>(transport.get()))
    setAlpha(buttons->routingButton, 0);
  objc::send<void, "addTarget:action:forControlEvents:">(volume.get(), made,
                                                         objc::selector<"_slide:">(), valueChanged);
  volumeObserver_ = AudioSystem::current().observe([this] { update(); });
  update();
  return made;
}

MusicView::~MusicView() {
  if (volumeObserver_ != 0) AudioSystem::current().forget(volumeObserver_);
  if (nextSecond_ != 0) Phone::current().queue.cancel(nextSecond_);
}

void MusicView::layoutSubviews() {
  super<void, "layoutSubviews">();
  constexpr double margin = 32, controls = 300;  // points; what is below the artwork is that high
  const CGSize size = sizeOf(Object(self()));
  const double side = std::clamp(size.height - controls - 120, 0.0, size.width - 2 * margin);
  const double width = std::min(size.width, 460.0) - 2 * margin, x = (size.width - width) / 2;
  const double top = std::max((size.height - side - controls) / 2, 12.0);
  setFrame(artwork, {{(size.width - side) / 2, top}, {side, side}});
  double y = top + side + 24;
  const auto place = [&](Object view, double height, double gap) {
    setFrame(view, {{x, y}, {width, height}});
    y += height + gap;
  };
  place(title, 28, 2);
  place(artist, 24, 20);
  place(timeControl, 30, 12);
  place(transport, 56, 16);
  place(volume, 34, 0);
}

void MusicView::previousTrack() {
  Player::current().previousTrack();
}
void MusicView::togglePlayPause() {
  Player::current().togglePlayPause();
}
void MusicView::nextTrack() {
  Player::current().nextTrack();
}
void MusicView::slideVolume(Object slider) {
  AudioSystem::current().slideVolume(objc::send<float, "value">(slider));
}

void MusicView::update() {
  const Player& player = Player::current();
  const Track* track = player.track();
  setText(title, string(track == nullptr ? systemName("Not Playing") : track->title.value_or("")));
  setText(artist, string(track == nullptr ? "" : track->artist));
  if (auto* buttons = stateOf<MRUNowPlayingTransportControlsView>(transport.get()))
    buttons->setPlaying(player.isPlaying());
  objc::send<void, "setValue:">(volume.get(), AudioSystem::current().volume());
  showTime();
}

void MusicView::showTime() {
  Phone& phone = Phone::current();
  phone.queue.cancel(std::exchange(nextSecond_, 0));
  const Player& player = Player::current();
  const Track* track = player.track();
  if (auto* line = stateOf<MRUNowPlayingTimeControl>(timeControl.get()))
    line->show(player.position(), track != nullptr ? seconds(track->length) : 0);
  if (!player.isPlaying()) return;
  const double untilNext = std::floor(player.position()) + 1 - player.position();
  nextSecond_ = phone.queue.add(phone.clock.uptime() + nanoseconds(untilNext), [this] {
    nextSecond_ = 0;
    showTime();
  });
}

void MusicView::registerClass() {
  StandIn<MusicView>("MusicApplication", "_MusicPlayerView", "UIView")
      .method<"initWithFrame:", &MusicView::initWithFrame>()
      .partial<"layoutSubviews", &MusicView::layoutSubviews>("what plays, and no library")
      .method<"_previous", &MusicView::previousTrack>()
      .method<"_playPause", &MusicView::togglePlayPause>()
      .method<"_next", &MusicView::nextTrack>()
      .method<"_slide:", &MusicView::slideVolume>()
      .finish();
}

void addMusicApplication() {
  onIconTap("Music", open);
}

}  // namespace sim
