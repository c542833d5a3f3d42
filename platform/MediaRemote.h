// MediaRemote (private): commands to whatever app is playing.
#pragma once

#include <utility>

#include "platform/Dispatch.h"
#include "platform/Foundation.h"

namespace MediaRemote {

enum class Command : int { nextTrack = 4 };

// False when the function does not exist or the command was not taken.
inline bool sendCommand(Command command, NSDictionary options) {
  auto* send = platform::hostFunction<"MRMediaRemoteSendCommand", bool(int, id)>();
  return send != nullptr && send(int(command), options.get());
}

inline NSString nowPlayingInfoDidChangeNotification() {
  return NSString(
      platform::hostConstant<"kMRMediaRemoteNowPlayingInfoDidChangeNotification", id>());
}

inline NSString infoTitleKey() {
  return NSString(platform::hostConstant<"kMRMediaRemoteNowPlayingInfoTitle", id>());
}

// Calls `completion` with what plays, on the main queue; with nil when nothing does.
template <class Completion>
void getNowPlayingInfo(Completion completion) {
  auto block = objc::block<void(NSDictionary)>(std::move(completion));
  if (auto* get =
          platform::hostFunction<"MRMediaRemoteGetNowPlayingInfo", void(dispatch_queue_t, id)>())
    get(dispatch::mainQueue(), block.get().get());
}

}  // namespace MediaRemote
