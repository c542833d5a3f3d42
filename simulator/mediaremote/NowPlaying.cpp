#include "simulator/mediaremote/NowPlaying.h"

#include <string>
#include <utility>
#include <vector>

#include "objc/Block.h"
#include "simulator/foundation/NSNotificationCenter.h"
#include "simulator/foundation/Values.h"
#include "simulator/machine/Phone.h"
#include "simulator/mediaremote/Player.h"
#include "simulator/standin/Fidelity.h"
#include "simulator/standin/Registration.h"

extern "C" {
id kMRMediaRemoteNowPlayingInfoDidChangeNotification;
id kMRMediaRemoteNowPlayingApplicationDidChangeNotification;
id kMRMediaRemoteNowPlayingInfoTitle;
id kMRMediaRemoteNowPlayingInfoArtist;
id kMRMediaRemoteNowPlayingInfoAlbum;
id kMRMediaRemoteNowPlayingInfoDuration;
id kMRMediaRemoteNowPlayingInfoElapsedTime;
id kMRMediaRemoteNowPlayingInfoPlaybackRate;
}

namespace sim {
namespace {

constexpr const char* framework = "MediaRemote";

using Pairs = std::vector<std::pair<objc::Object, objc::Object>>;

objc::Object nowPlayingInfo() {
  const Player& player = Player::current();
  const Track* track = player.track();
  if (track == nullptr) return nullptr;
  Pairs info = {
      {objc::Object(kMRMediaRemoteNowPlayingInfoDuration), number(seconds(track->length))},
      {objc::Object(kMRMediaRemoteNowPlayingInfoElapsedTime), number(player.position())},
      {objc::Object(kMRMediaRemoteNowPlayingInfoPlaybackRate),
       number(player.isPlaying() ? 1.0 : 0.0)}};
  const auto add = [&info](id key, const std::string& value) {
    if (!value.empty()) info.emplace_back(objc::Object(key), string(value));
  };
  if (track->title)
    info.emplace_back(objc::Object(kMRMediaRemoteNowPlayingInfoTitle), string(*track->title));
  if (track->hasNumberForTitle)
    info.emplace_back(objc::Object(kMRMediaRemoteNowPlayingInfoTitle), number(1.0));
  add(kMRMediaRemoteNowPlayingInfoArtist, track->artist);
  add(kMRMediaRemoteNowPlayingInfoAlbum, track->album);
  return dictionary(info);
}

void post(id name) {
  objc::send<void, "postNotificationName:object:">(notificationCenter(), name, nullptr);
}

// Who is registered ends with the host: while it restarts there is nobody to tell.
struct NowPlayingClients {
  int registered = 0;
};

int& registeredClients() {
  return Phone::current().state<NowPlayingClients>().registered;
}

struct Announced {
  std::string application;       // empty: nothing plays
  const Track* track = nullptr;  // for telling it from the next one only
};

void announceLater(id name) {
  Phone::current().queue.addNow([name] {
    if (registeredClients() > 0) post(name);
  });
}

// The player is another process: the host hears of a change when its main queue comes to it. Of a
// new track it hears again once there is artwork.
void announceChange() {
  auto& announced = Phone::current().state<Announced>();
  const Player& player = Player::current();
  const Track* track = player.track();
  const bool isOtherTrack = std::exchange(announced.track, track) != track;
  const std::string application = track != nullptr ? player.application() : "";
  if (std::exchange(announced.application, application) != application)
    announceLater(kMRMediaRemoteNowPlayingApplicationDidChangeNotification);
  announceLater(kMRMediaRemoteNowPlayingInfoDidChangeNotification);
  if (isOtherTrack && track != nullptr)
    announceLater(kMRMediaRemoteNowPlayingInfoDidChangeNotification);
}

void define(id& symbol, const char* name, const Rating& rating = {Grade::real, ""}) {
  symbol = objc::retain(string(name)).detach().get();
  recordFunction(framework, name, rating);
}

void defineStrings() {
  define(
      kMRMediaRemoteNowPlayingInfoDidChangeNotification,
      "kMRMediaRemoteNowPlayingInfoDidChangeNotification",
      {Grade::partial,
       "on the main thread, where a phone may use any; twice for a new track, once for any other "
       "change, where a phone may post more"});
  define(kMRMediaRemoteNowPlayingApplicationDidChangeNotification,
         "kMRMediaRemoteNowPlayingApplicationDidChangeNotification");
  define(kMRMediaRemoteNowPlayingInfoTitle, "kMRMediaRemoteNowPlayingInfoTitle");
  define(kMRMediaRemoteNowPlayingInfoArtist, "kMRMediaRemoteNowPlayingInfoArtist");
  define(kMRMediaRemoteNowPlayingInfoAlbum, "kMRMediaRemoteNowPlayingInfoAlbum");
  define(kMRMediaRemoteNowPlayingInfoDuration, "kMRMediaRemoteNowPlayingInfoDuration");
  define(kMRMediaRemoteNowPlayingInfoElapsedTime, "kMRMediaRemoteNowPlayingInfoElapsedTime");
  define(kMRMediaRemoteNowPlayingInfoPlaybackRate, "kMRMediaRemoteNowPlayingInfoPlaybackRate");
}

bool perform(Player& player, int command) {
  switch (command) {
    case 0:
      player.play();
      return true;
    case 1:
      player.pause();
      return true;
    case 2:
      player.togglePlayPause();
      return true;
    case 3:
      player.stop();
      return true;
    case 4:
      player.nextTrack();
      return true;
    case 5:
      player.previousTrack();
      return true;
    default:
      return false;
  }
}

}  // namespace

void registerMediaRemote() {
  const objc::AutoreleasePool pool;
  defineStrings();
  recordFunction(framework, "MRMediaRemoteGetNowPlayingInfo",
                 {Grade::partial, "no artwork, no identifiers of the track"});
  recordFunction(framework, "MRMediaRemoteSendCommand",
                 {Grade::partial, "commands 0 to 5; the options are ignored"});
  recordFunction(framework, "MRMediaRemoteRegisterForNowPlayingNotifications",
                 {Grade::partial, "the queue is ignored"});
  recordFunction(framework, "MRMediaRemoteUnregisterForNowPlayingNotifications", {Grade::real, ""});
  Player::current().observe(announceChange);
  Player::current().hostDidBoot();
}

void observeNowPlayingInfo(objc::Object observer) {
  objc::send<void, "addObserver:selector:name:object:">(
      notificationCenter(), observer, objc::selector<"_nowPlayingInfoDidChange:">(),
      objc::Object(kMRMediaRemoteNowPlayingInfoDidChangeNotification), nullptr);
}

}  // namespace sim

void MRMediaRemoteRegisterForNowPlayingNotifications(dispatch_queue_t) {
  ++sim::registeredClients();
}

void MRMediaRemoteUnregisterForNowPlayingNotifications(void) {
  if (int& clients = sim::registeredClients(); clients > 0) --clients;
}

void MRMediaRemoteGetNowPlayingInfo(dispatch_queue_t queue, id block) {
  using Completion = objc::Block<void(objc::Object)>;
  if (block == nullptr) return;
  auto completion = objc::adopt(Completion(static_cast<id>(_Block_copy(block))));
  dispatch_async(queue, objc::block<void()>([completion = std::move(completion)] {
                          completion.get()(sim::nowPlayingInfo());
                        })
                            .get()
                            .get());
}

objc::Wire<bool> MRMediaRemoteSendCommand(int command, id) {
  sim::Phone::current().journal.record("MRMediaRemoteSendCommand(" + std::to_string(command) + ')');
  return sim::perform(sim::Player::current(), command);
}
