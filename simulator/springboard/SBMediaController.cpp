#include "simulator/springboard/SBMediaController.h"

#include <string>

#include "simulator/machine/Phone.h"
#include "simulator/mediaremote/AudioSystem.h"
#include "simulator/mediaremote/NowPlaying.h"
#include "simulator/mediaremote/Player.h"
#include "simulator/springboard/SBApplication.h"
#include "simulator/springboard/SBVolumeControl.h"
#include "simulator/standin/StandIn.h"

namespace sim {
namespace {

void journal(const std::string& message) {
  Phone::current().journal.record("-[SBMediaController " + message + ']');
}

struct MediaPolicy {
  bool refuses = false;
};

template <auto command>
bool perform(const std::string& message) {
  journal(message);
  if (Phone::current().state<MediaPolicy>().refuses) return false;
  (Player::current().*command)();
  return true;
}

}  // namespace

objc::Object SBMediaController::sharedInstance() {
  return objc::Object(shared().self());
}

objc::Object SBMediaController::init() {
  MRMediaRemoteRegisterForNowPlayingNotifications(&_dispatch_main_q);
  return super<objc::Object, "init">();
}

void SBMediaController::setRefusesCommands(bool refuses) {
  Phone::current().state<MediaPolicy>().refuses = refuses;
}

void SBMediaController::play() {
  perform<&Player::play>("play");
}

void SBMediaController::pause() {
  perform<&Player::pause>("pause");
}

bool SBMediaController::pauseForEventSource(long source) {
  return perform<&Player::pause>("pauseForEventSource:" + notation(source));
}

void SBMediaController::togglePlayPause() {
  perform<&Player::togglePlayPause>("togglePlayPause");
}

bool SBMediaController::togglePlayPauseForEventSource(long source) {
  return perform<&Player::togglePlayPause>("togglePlayPauseForEventSource:" + notation(source));
}

bool SBMediaController::isPlaying() {
  return Player::current().isPlaying();
}

bool SBMediaController::isPaused() {
  const Player& player = Player::current();
  return player.track() != nullptr && !player.isPlaying();
}

objc::Object SBMediaController::nowPlayingApplication() {
  const Player& player = Player::current();
  if (player.track() == nullptr) return nullptr;
  return SBApplication::withBundleIdentifier(player.application());
}

float SBMediaController::volume() {
  return AudioSystem::current().volume();
}

void SBMediaController::setVolume(float level) {
  journal("setVolume:" + notation(level));
  AudioSystem::current().setVolume(level);
}

bool SBMediaController::suppressHUD() {
  return AudioSystem::current().isIndicatorSuppressed();
}

void SBMediaController::setSuppressHUD(bool suppress) {
  journal("setSuppressHUD:" + notation(suppress));
  AudioSystem::current().setIndicatorSuppressed(suppress);
}

objc::Object SBMediaController::volumeControl() {
  return SBVolumeControl::sharedInstance();
}

void SBMediaController::registerClass() {
  StandIn<SBMediaController>("SpringBoard", "SBMediaController", "NSObject")
      .classMethod<"sharedInstance", &SBMediaController::sharedInstance>()
      .method<"init", &SBMediaController::init>()
      .method<"play", &SBMediaController::play>()
      .method<"pause", &SBMediaController::pause>()
      .partial<"pauseForEventSource:", &SBMediaController::pauseForEventSource>(
          "the source changes nothing")
      .method<"togglePlayPause", &SBMediaController::togglePlayPause>()
      .partial<"togglePlayPauseForEventSource:", &SBMediaController::togglePlayPauseForEventSource>(
          "the source changes nothing")
      .method<"isPlaying", &SBMediaController::isPlaying>()
      .method<"isPaused", &SBMediaController::isPaused>()
      .partial<"nowPlayingApplication", &SBMediaController::nowPlayingApplication>(
          "a new object each time; whatever plays, also where a phone has nil because it may not "
          "play "
          "in the background")
      .method<"volume", &SBMediaController::volume>()
      .method<"setVolume:", &SBMediaController::setVolume>()
      .method<"suppressHUD", &SBMediaController::suppressHUD>()
      .method<"setSuppressHUD:", &SBMediaController::setSuppressHUD>()
      .method<"_volumeControl", &SBMediaController::volumeControl>()
      .finish();
}

}  // namespace sim
