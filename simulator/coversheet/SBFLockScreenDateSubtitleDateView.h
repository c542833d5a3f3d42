// SpringBoardFoundation: the date under the lock screen's clock.
#pragma once

#include "objc/Class.h"

namespace sim {

struct SBFLockScreenDateSubtitleDateView : objc::Implementation<SBFLockScreenDateSubtitleDateView> {
  objc::Strong<objc::Object> date;  // NSDate

  void setDate(objc::Object shown);
  // Draws the date. A nil time zone is the phone's.
  void setDate_inTimeZone(objc::Object shown, objc::Object timeZone);

  static void registerClass();
};

}  // namespace sim
