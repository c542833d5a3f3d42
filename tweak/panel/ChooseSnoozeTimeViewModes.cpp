// The choose-time page's two modes, and the settings that preset its pickers.
#include "tweak/panel/ChooseSnoozeTimeViewImplementation.h"
#include "tweak/support/Arithmetic.h"
#include "tweak/support/BundleHelper.h"
#include "tweak/support/SpokenText.h"

using Page = ChooseSnoozeTimeViewImplementation;

namespace {

constexpr double switchSeconds = 0.3;

// Without the option that shows and hides the two, the platform swaps them in the hierarchy.
void crossDissolve(UIView from, UIView to) {
  UIKit::transition(from, to, switchSeconds, UIKit::transitionCrossDissolve,
                    UIKit::completion([from = objc::retain(from)] { from->setHidden(true); }));
}

}  // namespace

void Page::toggleModes() {
  if (nbSongsPickerView->isHidden()) {
    showSongMode();
  } else {
    showTimerMode();
  }
  // The picker that comes in lies over them.
  view().bringSubviewToFront(topRightCornerButton);
  view().bringSubviewToFront(topLeftCornerButton);
}

void Page::showTimerMode() {
  timeSelectorPickerView->setHidden(false);
  topRightCornerButton->setImage(BundleHelper::getImageWithName("nbSongsIcon"_ns));
  topRightCornerButton->setAccessibilityLabel(SpokenText::localized("CHOOSE_SONGS"));
  crossDissolve(nbSongsPickerView, timeSelectorPickerView);
}

void Page::showSongMode() {
  nbSongsPickerView->setHidden(false);
  topRightCornerButton->setImage(BundleHelper::getImageWithName("timerIcon"_ns));
  topRightCornerButton->setAccessibilityLabel(SpokenText::localized("CHOOSE_DURATION"));
  crossDissolve(timeSelectorPickerView, nbSongsPickerView);
}

void Page::setModeType(int type) {
  enum { bothModes = 0, durationsOnly = 1, songsOnly = 2 };
  if (type != modeType) {
    modeType = type;
    topRightCornerButton->setHidden(type != bothModes);
    if (type == bothModes || type == durationsOnly) showTimerMode();
    if (type == songsOnly) showSongMode();
    if (type == bothModes) view().bringSubviewToFront(topRightCornerButton);
  }
  view().bringSubviewToFront(topLeftCornerButton);
}

// Puts the picker back to one step.
void Page::setPickerMinutesSteps(long minutes) {
  if (minutes == pickerMinutesSteps) return;
  pickerMinutesSteps = minutes;
  timeSelectorPickerView->setMinuteInterval(minutes);
  // What the picker makes of it: not every number of minutes can be a step.
  timeSelectorPickerView->setCountDownDuration(double(timeSelectorPickerView->minuteInterval()) *
                                               60);
}

void Page::setDefaultTimerPickerValue(long minutes) {
  if (minutes == defaultTimerPickerValue) return;
  defaultTimerPickerValue = minutes;
  timeSelectorPickerView->setCountDownDuration(double(minutes) * 60);
}

void Page::setDefaultNbSongsPickerValue(long songs) {
  if (songs == defaultNbSongsPickerValue) return;
  defaultNbSongsPickerValue = songs;
  // The setting may be any number. The picker leaves out rows past its last; a negative one would
  // raise and end the host.
  const long row = wrappingDifference(songs, 1);
  if (row >= 0) nbSongsPickerView->selectRow(row, 0, false);
  addOrRemovePluralForRow(row);
}
