// SpringBoardFoundation: the date under the lock screen's clock.
#pragma once

#include "objc/Class.h"

namespace sim {

struct SBFLockScreenDateSubtitleDateView : objc::Implementation<SBFLockScreenDateSubtitleDateView> {
  objc::Strong<objc::Object> date;                // NSDate
  objc::Strong<objc::Object> alternateDateLabel;  // for the lunar date; nil
  bool useCompactDateFormat = false;

  void setDate(objc::Object shown);
  // Draws the date. A nil time zone is the phone's.
  void setDate_inTimeZone(objc::Object shown, objc::Object timeZone);
  // Draws the date again, and does not come by the method above.
  void setUseCompactDateFormat(bool compact);
  void updateDateLabelForCompact();

  static void registerClass();
};

}  // namespace sim
