#include "simulator/mediacontrols/MRUNowPlayingTimeControl.h"

#include <array>
#include <cmath>
#include <cstdio>

#include "simulator/foundation/LocaleText.h"
#include "simulator/foundation/Values.h"
#include "simulator/machine/Phone.h"
#include "simulator/standin/StandIn.h"
#include "simulator/uikit/views/ViewBuilding.h"

namespace sim {
namespace {

using objc::Object;

constexpr double lineHeight = 4, lineTop = 4;  // points

Object clockTime(const char* sign, double seconds) {
  const long whole = std::lround(std::floor(seconds));
  std::array<char, 32> text;
  std::snprintf(text.data(), text.size(), "%s%ld:%02ld", sign, whole / 60, whole % 60);
  return string(withLocaleDigits(text.data(), Phone::current().setup.locale));
}

}  // namespace

Object MRUNowPlayingTimeControl::initWithFrame(CGRect frame) {
  constexpr long right = 2, playback = 1;
  const auto made = super<Object, "initWithFrame:">(frame);
  track = addView(made, "UIView");
  fill(track, whiteColor(0.2), lineHeight / 2);
  progress = addView(made, "UIView");
  fill(progress, whiteColor(0.8), lineHeight / 2);
  elapsedLabel = addLabel(made, {.points = 11, .alpha = 0.6});
  remainingLabel = addLabel(made, {.points = 11, .alpha = 0.6, .alignment = right});
  // Music runs from left to right in every language, and the sign stays before its number.
  for (const Object label : {elapsedLabel.get(), remainingLabel.get()})
    objc::send<void, "setSemanticContentAttribute:">(label, playback);
  return made;
}

void MRUNowPlayingTimeControl::show(double elapsedSeconds, double durationSeconds) {
  elapsed = elapsedSeconds;
  duration = durationSeconds;
  const bool plays = duration > 0;
  setText(elapsedLabel, plays ? clockTime("", elapsed) : string("--:--"));
  // Rounded so that the two add up to the length.
  setText(remainingLabel,
          plays ? clockTime("-", std::floor(duration) - std::floor(elapsed)) : string("--:--"));
  objc::send<void, "setNeedsLayout">(self());
}

void MRUNowPlayingTimeControl::layoutSubviews() {
  super<void, "layoutSubviews">();
  const double width = sizeOf(Object(self())).width;
  constexpr double textTop = lineTop + lineHeight + 4, textHeight = 14, textWidth = 60;
  setFrame(track, {{0, lineTop}, {width, lineHeight}});
  const double done = duration > 0 ? width * elapsed / duration : 0;
  setFrame(progress, {{0, lineTop}, {done, lineHeight}});
  setFrame(elapsedLabel, {{0, textTop}, {textWidth, textHeight}});
  setFrame(remainingLabel, {{width - textWidth, textTop}, {textWidth, textHeight}});
}

void MRUNowPlayingTimeControl::registerClass() {
  StandIn<MRUNowPlayingTimeControl>("MediaControls", "MRUNowPlayingTimeControl", "UIView")
      .method<"initWithFrame:", &MRUNowPlayingTimeControl::initWithFrame>()
      .readonlyProperty<"elapsedLabel", &MRUNowPlayingTimeControl::elapsedLabel>()
      .readonlyProperty<"remainingLabel", &MRUNowPlayingTimeControl::remainingLabel>()
      .partial<"layoutSubviews", &MRUNowPlayingTimeControl::layoutSubviews>(
          "nobody can drag the line")
      .finish();
}

}  // namespace sim
