// MediaRemote (private): commands to whatever app is playing.
#pragma once

#include "platform/Foundation.h"

namespace MediaRemote {

enum class Command : int { nextTrack = 4 };

// False when the function does not exist or the command was not taken.
inline bool sendCommand(Command command, NSDictionary options) {
  auto* send = platform::hostFunction<"MRMediaRemoteSendCommand", bool(Command, id)>();
  return send != nullptr && send(command, options.get());
}

inline NSString nowPlayingInfoDidChangeNotification() {
  return NSString(
      platform::hostConstant<"kMRMediaRemoteNowPlayingInfoDidChangeNotification", id>());
}

}  // namespace MediaRemote
