// The panel's page on which a duration or a number of songs is picked.
#pragma once

#include "objc/Ownership.h"
#include "objc/Registration.h"
#include "platform/UIKit.h"

struct ChooseSnoozeTimeView : UIView {
  using UIView::UIView;

  static objc::Strong<ChooseSnoozeTimeView> make(CGRect frame) {
    return objc::adopt(
        objc::send<ChooseSnoozeTimeView, "initWithFrame:">(objc_alloc(cls()), frame));
  }

  // The page's own, without actions.
  UIButton leftButton() const { return objc::send<UIButton, "leftButton">(*this); }
  UIButton rightButton() const { return objc::send<UIButton, "rightButton">(*this); }
  UIButton topLeftCornerButton() const {
    return objc::send<UIButton, "topLeftCornerButton">(*this);
  }
  // Of the two pickers one is hidden: that tells the mode.
  UIDatePicker timeSelectorPickerView() const {
    return objc::send<UIDatePicker, "timeSelectorPickerView">(*this);
  }
  UIPickerView nbSongsPickerView() const {
    return objc::send<UIPickerView, "nbSongsPickerView">(*this);
  }
  long nbSongsSelected() const { return objc::send<long, "nbSongsSelected">(*this); }  // from 1

  // The presets. Each does something only when it changes, so that the user's choice stays.
  void setPickerMinutesSteps(long minutes) const {  // and puts the duration back to one step
    objc::send<void, "setPickerMinutesSteps:">(*this, minutes);
  }
  void setDefaultTimerPickerValue(long minutes) const {
    objc::send<void, "setDefaultTimerPickerValue:">(*this, minutes);
  }
  void setDefaultNbSongsPickerValue(long songs) const {
    objc::send<void, "setDefaultNbSongsPickerValue:">(*this, songs);
  }
  void setModeType(int type) const {  // 0 both modes, 1 durations only, 2 songs only
    objc::send<void, "setModeType:">(*this, type);
  }

  static Class cls();  // nil until it is registered
  static objc::Registration registerClass();
};
