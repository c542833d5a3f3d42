#include "simulator/serve/TimerView.h"

#include <algorithm>
#include <nlohmann/json.hpp>

#include "objc/Message.h"
#include "simulator/mediaremote/AudioSystem.h"
#include "simulator/mediaremote/Player.h"
#include "simulator/radios/Radios.h"
#include "simulator/runtime/LiveObjects.h"
#include "simulator/runwright/ShortcutRunner.h"
#include "simulator/script/Session.h"
#include "simulator/services/PCSimpleTimer.h"
#include "simulator/springboard/SBMediaController.h"

namespace sim {

using nlohmann::json;
using objc::Object;

namespace {

constexpr const char* systemTimerName = "com.corvane.dozewell2";
constexpr const char* endShortcut = "Dozewell End";

template <class R, objc::FixedString Name>
R valueOf(Object object) {
  const SEL selector = sel_registerName(Name.text);
  if (!class_respondsToSelector(object_getClass(object.get()), selector)) return R();
  return objc::send<R, Name>(object);
}

// nil until the extension has made its own: asking its class would make it.
Object onlyOne(const char* name) {
  const Class cls = objc_getClass(name);
  if (cls == nullptr) return nullptr;
  const auto all = runtime::liveInstances(cls);
  return all.size() == 1 ? Object(all.front()) : Object();
}

bool isSet(const json& settings, const char* key) {
  const auto found = settings.find(key);
  return found != settings.end() && found->is_boolean() && found->get<bool>();
}

long numberOf(const json& settings, const char* key) {
  const auto found = settings.find(key);
  return found != settings.end() && found->is_number() ? found->get<long>() : 0;
}

// Those that would be disconnected, by name; null: Bluetooth is switched off.
json disconnected(const json& settings) {
  constexpr long named = 1, off = 2;
  const long mode = numberOf(settings, "onTimerEndsBluetoothMode");
  if (mode == off) return nullptr;
  // A name that was never set is nobody's.
  const json name = settings.value("onTimerEndsBluetoothDeviceName", json());
  json all = json::array();
  for (const Radios::Peer& peer : Radios::current().peers())
    if (mode != named || name.is_null() || name == peer.name) all.push_back(peer.name);
  return all;
}

void addBluetooth(json& actions, const json& settings) {
  if (!Radios::current().isBluetoothOn()) return;
  const json names = disconnected(settings);
  if (names.is_null())
    actions.push_back({{"do", "bluetooth-off"}});
  else if (!names.empty())
    actions.push_back({{"do", "disconnect"}, {"names", names}});
}

bool hasEndShortcut() {
  const ShortcutRunner& runner = ShortcutRunner::current();
  const auto& names = runner.shortcuts();
  return runner.isInstalled() && std::find(names.begin(), names.end(), endShortcut) != names.end();
}

// In the order in which they happen, and only those that would happen if the end were now.
json actionsAtEnd(const json& settings, bool fades) {
  json actions = json::array();
  const Player& player = Player::current();
  // Also where nothing plays just then.
  const bool isLoud = AudioSystem::current().volume() > 0;
  if (fades && isLoud && isSet(settings, "volumeFadeOutEnabled") &&
      numberOf(settings, "volumeFadeOutTime") > 0)
    actions.push_back({{"do", "fade"}, {"seconds", numberOf(settings, "volumeFadeOutTime")}});
  if (player.isPlaying()) actions.push_back({{"do", "pause"}});
  if (isSet(settings, "onTimerEndsAirplane") && !Radios::current().isAirplaneModeOn())
    actions.push_back({{"do", "airplane"}});
  if (isSet(settings, "onTimerEndsDND")) actions.push_back({{"do", "focus"}});
  if (isSet(settings, "onTimerEndsBluetooth")) addBluetooth(actions, settings);
  if (isSet(settings, "onTimerEndsRunShortcut") && hasEndShortcut())
    actions.push_back({{"do", "shortcut"}, {"name", endShortcut}});
  if (isSet(settings, "onTimerEndsKillNowPlayingApp") && player.track() != nullptr)
    actions.push_back({{"do", "close"}, {"application", player.application()}});
  return actions;
}

// The extension shows no volume display from a fade's first step to shortly after its last. What is
// paused meanwhile ends no fade: that one ends in silence, and then the volume is restored.
bool isFading() {
  if (SBMediaController::cls() == nullptr ||
      !SBMediaController::of(SBMediaController::sharedInstance()).suppressHUD())
    return false;
  if (Player::current().isPlaying()) return true;
  const float volume = AudioSystem::current().volume();
  const Object tasks = onlyOne("SpecialTasksHelper");
  return tasks && volume > 0 && volume != float(valueOf<double, "volumeBeforeFadeOut">(tasks));
}

// The extension counts no song that follows one of the same title, as when one song repeats.
bool sameTitleFollows() {
  const Track* track = Player::current().track();
  const Track* next = Player::current().following();
  return track != nullptr && next != nullptr && track->title == next->title;
}

json endOf(Object timer, const json& settings) {
  const bool isDuration = valueOf<bool, "timerModeIsRunning">(timer);
  const bool isOver = valueOf<bool, "shouldPauseMusicAtTheEndOfThisTrack">(timer);
  const bool endsWithSong = !isDuration || isOver || isSet(settings, "letTheSongFinishEnabled");
  json view = {{"mode", isDuration ? "duration" : "songs"},
               {"endsAt", nullptr},
               {"songsLeft", nullptr},
               {"endsWithSong", endsWithSong}};
  // What is due first ends it, also when a shake has set another since.
  const auto due = PCSimpleTimer::firstDue(systemTimerName);
  if (isDuration && !isOver && due) view["endsAt"] = seconds(*due);
  if (!isDuration) view["songsLeft"] = valueOf<long, "getTimerRemainingTracks">(timer);
  view["sameTitleFollows"] = sameTitleFollows();
  view["atEnd"] = actionsAtEnd(settings, !endsWithSong);
  return view;
}

}  // namespace

Object TimerView::engine() {
  const std::size_t lines = Phone::current().journal.size();
  if (engine_ || lines == lookedAt_) return engine_;
  lookedAt_ = lines;
  return engine_ = onlyOne("Dozewell2Manager");
}

json TimerView::now(const json& settings) {
  json view = {{"mode", nullptr},       {"endsAt", nullptr},         {"songsLeft", nullptr},
               {"endsWithSong", false}, {"sameTitleFollows", false}, {"fades", false},
               {"atEnd", json::array()}};
  if (Session::current().state != HostState::running) return view;
  const objc::AutoreleasePool pool;
  const Object timer = engine();
  const bool isRunning = timer && (valueOf<bool, "timerModeIsRunning">(timer) ||
                                   valueOf<bool, "nbSongsModeIsRunning">(timer));
  if (isRunning) {
    view.update(endOf(timer, settings));
  } else if (timer && isFading()) {
    view["fades"] = true;
    view["atEnd"] = actionsAtEnd(settings, false);
  }
  return view;
}

}  // namespace sim
