#include "simulator/coversheet/SBFLockScreenDateSubtitleDateView.h"

#include "simulator/foundation/LocaleText.h"
#include "simulator/foundation/Values.h"
#include "simulator/machine/Phone.h"
#include "simulator/standin/StandIn.h"

namespace sim {

void SBFLockScreenDateSubtitleDateView::setDate(objc::Object shown) {
  objc::send<void, "_setDate:inTimeZone:">(self(), shown, nullptr);
}

void SBFLockScreenDateSubtitleDateView::setDate_inTimeZone(objc::Object shown, objc::Object) {
  date = objc::retain(shown);
  objc::Object line;
  if (shown)
    line = string(dayText(objc::send<double, "timeIntervalSinceReferenceDate">(shown),
                          Phone::current().setup.locale));
  objc::send<void, "setString:">(self(), line);
}

void SBFLockScreenDateSubtitleDateView::registerClass() {
  using View = SBFLockScreenDateSubtitleDateView;
  StandIn<View>("SpringBoardFoundation", "SBFLockScreenDateSubtitleDateView",
                "SBFLockScreenDateSubtitleView")
      .readonlyProperty<"date", &View::date>()
      .method<"setDate:", &View::setDate>()
      .partial<"_setDate:inTimeZone:", &View::setDate_inTimeZone>(
          "UTC in any time zone; in nine languages, English elsewhere; the Gregorian calendar")
      .finish();
}

}  // namespace sim
