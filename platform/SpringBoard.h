// SpringBoard (private): the host's own classes.
#pragma once

#include "platform/UIKit.h"

// The application object of the host.
struct SpringBoard : UIApplication {
  using UIApplication::UIApplication;
};

struct SBBacklightController : objc::Object {
  using Object::Object;
  static SBBacklightController sharedInstance() {
    return objc::send<SBBacklightController, "sharedInstance">(
        objc::classNamed<"SBBacklightController">());
  }
  bool screenIsOn() const { return objc::send<bool, "screenIsOn">(*this); }
};

// The media volume and its category, iOS 13 and later.
struct SBVolumeControl : objc::Object {
  using Object::Object;
  float mediaVolume() const {  // 0 to 1
    return objc::send<float, "_getMediaVolumeForIAP">(*this);
  }
  void setVolume(float volume, NSString category) const {  // clamped to 0 … 1 by the host
    objc::send<void, "setVolume:forCategory:">(*this, volume, category);
  }
};

struct SBApplication : objc::Object {
  using Object::Object;
  NSString bundleIdentifier() const { return objc::send<NSString, "bundleIdentifier">(*this); }
};

struct SBMediaController : NSObject {
  using NSObject::NSObject;
  static SBMediaController sharedInstance() {  // nil when the class does not exist
    return objc::send<SBMediaController, "sharedInstance">(objc::classNamed<"SBMediaController">());
  }
  bool canPause() const { return objc::respondsTo<"pause">(*this); }
  void pause() const { objc::send<void, "pause">(*this); }
  // In place of `pause` from iOS 15 on, and beside it on some systems before.
  bool canPauseForEventSource() const { return objc::respondsTo<"pauseForEventSource:">(*this); }
  // false: the system's policy refused, and nothing has happened.
  bool pauseForEventSource(long source) const {
    return objc::send<bool, "pauseForEventSource:">(*this, source);
  }
  // Before iOS 13 only; elsewhere 0, and nothing is set.
  float volume() const {
    return objc::respondsTo<"volume">(*this) ? objc::send<float, "volume">(*this) : 0;
  }
  void setVolume(float volume) const {
    if (objc::respondsTo<"setVolume:">(*this)) objc::send<void, "setVolume:">(*this, volume);
  }
  SBVolumeControl volumeControl() const {  // iOS 13 and later
    return objc::as<SBVolumeControl>(safeValueForKey("_volumeControl"_ns));
  }
  SBApplication nowPlayingApplication() const {  // nil when nothing plays
    return objc::send<SBApplication, "nowPlayingApplication">(*this);
  }
  // While on, volume changes show no indicator.
  void setSuppressHUD(bool suppress) const { objc::send<void, "setSuppressHUD:">(*this, suppress); }
};
