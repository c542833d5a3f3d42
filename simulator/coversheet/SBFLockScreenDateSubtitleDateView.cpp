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
  objc::send<void, "_updateDateLabelForCompact">(self());
}

void SBFLockScreenDateSubtitleDateView::setUseCompactDateFormat(bool compact) {
  useCompactDateFormat = compact;
  objc::send<void, "_updateDateLabelForCompact">(self());
}

void SBFLockScreenDateSubtitleDateView::updateDateLabelForCompact() {
  objc::Object line;
  if (date)
    line = string(dayText(objc::send<double, "timeIntervalSinceReferenceDate">(date.get()),
                          Phone::current().setup.locale));
  objc::send<void, "setString:">(self(), line);
}

void SBFLockScreenDateSubtitleDateView::registerClass() {
  using View = SBFLockScreenDateSubtitleDateView;
  StandIn<View>("SpringBoardFoundation", "SBFLockScreenDateSubtitleDateView",
                "SBFLockScreenDateSubtitleView")
      .readonlyProperty<"date", &View::date>()
      .readonlyProperty<"alternateDateLabel", &View::alternateDateLabel>()
      .readonlyProperty<"useCompactDateFormat", &View::useCompactDateFormat>()
      .method<"setDate:", &View::setDate>()
      .partial<"_setDate:inTimeZone:", &View::setDate_inTimeZone>(
          "UTC in any time zone; in nine languages, English elsewhere; the Gregorian calendar, and "
          "no lunar date beside it")
      .partial<"setUseCompactDateFormat:", &View::setUseCompactDateFormat>("the text is no shorter")
      .method<"_updateDateLabelForCompact", &View::updateDateLabelForCompact>()
      .finish();
}

}  // namespace sim
