#include "simulator/springboard/SBMediaController.h"

#include <string>

#include "simulator/machine/Phone.h"
#include "simulator/mediaremote/AudioSystem.h"
#include "simulator/mediaremote/Player.h"
#include "simulator/springboard/SBApplication.h"
#include "simulator/springboard/SBVolumeControl.h"
#include "simulator/standin/StandIn.h"

namespace sim {
namespace {

void journal(const std::string& message) {
  Phone::current().journal.record("-[SBMediaController " + message + ']');
}

}  // namespace

objc::Object SBMediaController::sharedInstance() {
  return objc::Object(shared().self());
}

void SBMediaController::play() {
  journal("play");
  Player::current().play();
}

void SBMediaController::pause() {
  journal("pause");
  Player::current().pause();
}

void SBMediaController::pauseForEventSource(long source) {
  journal("pauseForEventSource:" + notation(source));
  Player::current().pause();
}

void SBMediaController::togglePlayPause() {
  journal("togglePlayPause");
  Player::current().togglePlayPause();
}

void SBMediaController::togglePlayPauseForEventSource(long source) {
  journal("togglePlayPauseForEventSource:" + notation(source));
  Player::current().togglePlayPause();
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
      .method<"play", &SBMediaController::play>()
      .partial<"pause", &SBMediaController::pause>(
          "on every version; newer phones have pauseForEventSource: alone")
      .partial<"pauseForEventSource:", &SBMediaController::pauseForEventSource>(
          "the source changes nothing")
      .method<"togglePlayPause", &SBMediaController::togglePlayPause>()
      .partial<"togglePlayPauseForEventSource:", &SBMediaController::togglePlayPauseForEventSource>(
          "the source changes nothing")
      .method<"isPlaying", &SBMediaController::isPlaying>()
      .method<"isPaused", &SBMediaController::isPaused>()
      .partial<"nowPlayingApplication", &SBMediaController::nowPlayingApplication>(
          "a new object each time")
      .partial<"volume", &SBMediaController::volume>(
          "on every version; newer phones have it in SBVolumeControl alone")
      .partial<"setVolume:", &SBMediaController::setVolume>(
          "on every version; newer phones have it in SBVolumeControl alone")
      .method<"suppressHUD", &SBMediaController::suppressHUD>()
      .method<"setSuppressHUD:", &SBMediaController::setSuppressHUD>()
      .method<"_volumeControl", &SBMediaController::volumeControl>()
      .finish();
}

}  // namespace sim
