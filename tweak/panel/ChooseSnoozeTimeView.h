// The panel's page on which a duration or a number of songs is picked.
#pragma once

#include "objc/Class.h"
#include "platform/UIKit.h"

// Laid out with frames, deliberately: W and H are those of the view that holds this one.
struct ChooseSnoozeTimeView : objc::Implementation<ChooseSnoozeTimeView> {
  objc::Strong<UILabel> musicLabel;  // "song" or "songs", beside the songs picker
  objc::Strong<NSString> musicLocalizedlabelText;
  objc::Strong<UIStackView> bottomButtonsStackView;
  objc::Strong<UIButton> topRightCornerButton;  // switches the mode; shows the other one's icon
  int modeType;                                 // 0 both modes, 1 durations only, 2 songs only
  long pickerMinutesSteps;
  long defaultTimerPickerValue;    // minutes
  long defaultNbSongsPickerValue;  // songs
  objc::Strong<UIButton> leftButton;
  objc::Strong<UIButton> rightButton;
  objc::Strong<UIButton> topLeftCornerButton;
  objc::Strong<UIDatePicker> timeSelectorPickerView;
  objc::Strong<UIPickerView> nbSongsPickerView;

  id initWithFrame(CGRect frame);
  CGRect frame();  // of the superview, deliberately
  void layoutSubviews();
  void setupView();
  void addTimeSelectorPickerView();
  void addNbSongsSelectorPickerView();
  void addButtons();
  void addToggleModesButton();
  void addSettingsButton();

  long nbSongsSelected();
  void addOrRemovePluralForRow(long row);
  void toggleModes();
  void showTimerMode();
  void showSongMode();
  void setModeType(int type);
  void setPickerMinutesSteps(long minutes);
  void setDefaultTimerPickerValue(long minutes);
  void setDefaultNbSongsPickerValue(long songs);

  // The songs picker's data source and delegate.
  long numberOfComponentsInPickerView(UIPickerView picker);
  long pickerView_numberOfRowsInComponent(UIPickerView picker, long component);
  double pickerView_rowHeightForComponent(UIPickerView picker, long component);
  NSString pickerView_titleForRow_forComponent(UIPickerView picker, long row, long component);
  UIView pickerView_viewForRow_forComponent_reusingView(UIPickerView picker, long row,
                                                        long component, UIView reusable);
  void pickerView_didSelectRow_inComponent(UIPickerView picker, long row, long component);

  static Class registerClass();

 private:
  UIView view() const { return UIView(self()); }
  CGSize container() const { return view().frame().size; }
};
