// MediaRemote: how the host learns what plays. The data symbols are filled by
// registerMediaRemote().
#pragma once

#include "objc/Message.h"
#include "simulator/dispatch/Dispatch.h"

extern "C" {

// NSString; each is its own name.
extern id kMRMediaRemoteNowPlayingInfoDidChangeNotification;
extern id kMRMediaRemoteNowPlayingApplicationDidChangeNotification;
extern id kMRMediaRemoteNowPlayingInfoTitle;
extern id kMRMediaRemoteNowPlayingInfoArtist;
extern id kMRMediaRemoteNowPlayingInfoAlbum;
extern id kMRMediaRemoteNowPlayingInfoDuration;      // NSNumber, seconds
extern id kMRMediaRemoteNowPlayingInfoElapsedTime;   // NSNumber, seconds
extern id kMRMediaRemoteNowPlayingInfoPlaybackRate;  // NSNumber, 1 or 0

// The notifications are posted only while somebody in the process has registered; each registration
// is taken back once. They come on the main thread, whatever the queue.
void MRMediaRemoteRegisterForNowPlayingNotifications(dispatch_queue_t queue);
void MRMediaRemoteUnregisterForNowPlayingNotifications(void);

// Runs the block, a void(^)(NSDictionary*), on `queue` with what plays then; nil when nothing does.
void MRMediaRemoteGetNowPlayingInfo(dispatch_queue_t queue, id block);

// 0 play, 1 pause, 2 toggle, 3 stop, 4 next track, 5 previous track. `options` is ignored.
// NO for another command.
objc::Wire<bool> MRMediaRemoteSendCommand(int command, id options);

}  // extern "C"

namespace sim {

// Until it is removed from the notification center it is sent _nowPlayingInfoDidChange:.
void observeNowPlayingInfo(objc::Object observer);

}  // namespace sim
