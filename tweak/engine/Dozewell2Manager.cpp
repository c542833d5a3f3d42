#include "tweak/engine/Dozewell2Manager.h"

#include "objc/Global.h"
#include "platform/Dispatch.h"
#include "platform/MediaRemote.h"
#include "platform/PersistentConnection.h"
#include "tweak/actions/SpecialTasksHelper.h"
#include "tweak/engine/Dozewell2ManagerImplementation.h"
#include "tweak/indicators/Dozewell2TimeLeftIndicatorsManager.h"
#include "tweak/settings/Dozewell2StorageManager.h"

using Engine = Dozewell2ManagerImplementation;

namespace {

// The host's timer that will end the current duration; empty when none is scheduled.
objc::Global<objc::Strong<PCSimpleTimer>> systemTimer;

NSDate fireDate() {
  return systemTimer->get().fireTimer().fireDate();
}

void scheduleSystemTimer() {
  systemTimer->get().scheduleInRunLoop(NSRunLoop::mainRunLoop());
}

void post(NSString name) {
  NSNotificationCenter::defaultCenter().postNotificationName(name, nullptr);
}

}  // namespace

// From its creation on, whether a timer runs or not: the count is of changes away from the track
// that plays at the start, and that must be known by then.
id Engine::init() {
  id initialised = super<id, "init">();
  NSNotificationCenter::defaultCenter().addObserver(
      objc::Object(initialised), objc::selector<"mediaDidChange:">(),
      MediaRemote::nowPlayingInfoDidChangeNotification(), nullptr);
  return initialised;
}

void Engine::startTimerWithMode_andValue(long mode, long value) {
  if (mode == Dozewell2Manager::songCountMode) {
    startTimerWithNbTracks(value);
    persistTimerWithNbTracks(value);
    lastChosenNbSongsSelected = value;
  } else if (mode == Dozewell2Manager::durationMode) {
    startTimerWithTimeInterval(value);
    persistTimerWithTimeInterval(value);
    lastChosenNbSeconds = value;
  }
  // Any other mode starts nothing, and still runs the start actions.
  SpecialTasksHelper::getInstance().performSpecialActionsOnTimerStart();
}

void Engine::startTimerWithTimeInterval(long seconds) {
  timerModeIsRunning = true;
  // A timer that still runs is let go, not invalidated: whoever wants it stopped cancels it first,
  // as the panel does. A shake does not, and the host fires the old timer at its own time, which
  // ends the music and the new timer with it. Invalidated here, a shake would put off the end
  // (embedding-shake-ends-at-the-old-time, timer-started-twice-keeps-both).
  *systemTimer =
      PCSimpleTimer::make(double(seconds), "com.corvane.dozewell2"_ns, objc::Object(self()),
                          objc::selector<"timerDidFire">(), NSDictionary::dictionary());
  if (NSThread::isMainThread()) {
    scheduleSystemTimer();
  } else {
    dispatch::onMain([] { scheduleSystemTimer(); });
  }
  // After the timer is there: whoever hears of the start may ask what is left.
  post("DozewellDidStartNotification"_ns);
  // Off the main thread the timer is not scheduled yet, and there may be no date.
  Dozewell2TimeLeftIndicatorsManager::sharedInstance().startTimerWithDate(fireDate());
}

void Engine::restartTimerWithLastChosenValue() {
  // No start actions: the phone is as they have left it. An end that waits for the track keeps
  // waiting. A value of 0 is none: a restored timer was not started from the panel.
  if (timerModeIsRunning && lastChosenNbSeconds != 0) {
    cancelAllPersistedTimers();
    startTimerWithTimeInterval(lastChosenNbSeconds);
    persistTimerWithTimeInterval(lastChosenNbSeconds);
  } else if (nbSongsModeIsRunning && lastChosenNbSongsSelected != 0) {
    cancelAllPersistedTimers();
    startTimerWithNbTracks(lastChosenNbSongsSelected);
    persistTimerWithNbTracks(lastChosenNbSongsSelected);
  }
}

void Engine::timerDidFire() {
  // The engine stays in duration mode: the next track change ends it.
  if (Dozewell2StorageManager::sharedInstance().letTheSongFinishEnabled()) {
    shouldPauseMusicAtTheEndOfThisTrack = true;
    return;
  }
  timerOrNbTracksDidEnd();
}

void Engine::timerOrNbTracksDidEnd() {
  const auto settings = Dozewell2StorageManager::sharedInstance();
  const auto tasks = SpecialTasksHelper::getInstance();
  // Only a duration that ends by itself fades: between two songs there is nothing to fade.
  if (timerModeIsRunning && settings.volumeFadeOutEnabled() && settings.volumeFadeOutTime() > 0 &&
      !shouldPauseMusicAtTheEndOfThisTrack) {
    tasks.pauseMusicWithFadeOutVolume(int(settings.volumeFadeOutTime()));
  } else {
    tasks.pauseMusic();
  }
  // Before the panel goes: whoever asks on its way out finds nothing running.
  reinit();
  if (isShowingDozewellUI) dozewell2VC->dismissDozewell();
}

void Engine::cancelTimer() {
  systemTimer->get().invalidate();
  *systemTimer = nullptr;
}

void Engine::reinit() {
  const auto indicators = Dozewell2TimeLeftIndicatorsManager::sharedInstance();
  // When both modes are flagged, by a start over a running count, the duration goes and the song
  // count stays. With both gone at once the music would play on past the last song that was asked
  // for (timer-reinit-with-both-modes).
  if (timerModeIsRunning) {
    timerModeIsRunning = false;
    cancelTimer();
    shouldPauseMusicAtTheEndOfThisTrack = false;
    indicators.stopTimer();
  } else if (nbSongsModeIsRunning) {
    nbSongsModeIsRunning = false;
    nbSongsPlayed = 0;
    indicators.stopCounter();
  }
  post("DozewellDidStopNotification"_ns);
  cancelAllPersistedTimers();
}

double Engine::getTimerRemainingTime() const {
  return fireDate().timeIntervalSinceNow();
}

Class Dozewell2Manager::cls() {
  return Engine::cls();
}

SleepTimer SleepTimer::sharedInstance() {
  return Dozewell2Manager::sharedInstance();
}

objc::Registration Dozewell2Manager::registerClass() {
  return objc::ClassBuilder<Engine>("Dozewell2Manager", "NSObject")
      .property<"timerModeIsRunning", &Engine::timerModeIsRunning>()
      .property<"nbSongsModeIsRunning", &Engine::nbSongsModeIsRunning>()
      .property<"isShowingDozewellUI", &Engine::isShowingDozewellUI>()
      .property<"shouldPauseMusicAtTheEndOfThisTrack",
                &Engine::shouldPauseMusicAtTheEndOfThisTrack>()
      .property<"nbSongsToPlayBeforeStop", &Engine::nbSongsToPlayBeforeStop>()
      .property<"nbSongsPlayed", &Engine::nbSongsPlayed>()
      .property<"lastSongTitleName", &Engine::lastSongTitleName>()
      .property<"dozewell2VC", &Engine::dozewell2VC>()
      .property<"currentNowPlayingVC", &Engine::currentNowPlayingVC>()
      .property<"lastChosenNbSeconds", &Engine::lastChosenNbSeconds>()
      .property<"lastChosenNbSongsSelected", &Engine::lastChosenNbSongsSelected>()
      .classMethod<"sharedInstance", &Engine::sharedInstance>()
      .classMethod<"sylphTweakEnabled", &Engine::sylphTweakEnabled>()
      .classMethod<"grupiTweakEnabled", &Engine::grupiTweakEnabled>()
      .method<"init", &Engine::init>()
      .computedProperty<"isRunning", &Engine::isRunning>()
      .method<"startTimerWithMode:andValue:", &Engine::startTimerWithMode_andValue>()
      .method<"startTimerWithTimeInterval:", &Engine::startTimerWithTimeInterval>()
      .method<"startTimerWithNbTracks:", &Engine::startTimerWithNbTracks>()
      .method<"restartTimerWithLastChosenValue", &Engine::restartTimerWithLastChosenValue>()
      .method<"timerDidFire", &Engine::timerDidFire>()
      .method<"timerOrNbTracksDidEnd", &Engine::timerOrNbTracksDidEnd>()
      .method<"cancelTimer", &Engine::cancelTimer>()
      .method<"reinit", &Engine::reinit>()
      .method<"getTimerRemainingTime", &Engine::getTimerRemainingTime>()
      .method<"getTimerRemainingTracks", &Engine::getTimerRemainingTracks>()
      .method<"mediaDidChange:", &Engine::mediaDidChange>()
      .method<"handleTrackChangedIfNeeded", &Engine::handleTrackChangedIfNeeded>()
      .method<"persistTimerWithTimeInterval:", &Engine::persistTimerWithTimeInterval>()
      .method<"persistTimerWithNbTracks:", &Engine::persistTimerWithNbTracks>()
      .method<"cancelAllPersistedTimers", &Engine::cancelAllPersistedTimers>()
      .method<"restoreDozewellIfNeeded", &Engine::restoreDozewellIfNeeded>()
      .finish();
}
