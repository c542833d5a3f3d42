// The choose-time page's state and operations, for the page's own files alone.
#pragma once

#include "objc/Class.h"
#include "tweak/panel/ButtonWithIncreasedTouchArea.h"
#include "tweak/panel/ChooseSnoozeTimeView.h"

// Laid out with frames, without constraints: W and H are those of the view that holds this one,
// read at each layout. Constraints would follow the page instead, whose height upright is fixed
// (choose-frames-at-layout).
struct ChooseSnoozeTimeViewImplementation
    : objc::Implementation<ChooseSnoozeTimeViewImplementation> {
  objc::Strong<UILabel> musicLabel;  // "song" or "songs", beside the songs picker
  objc::Strong<NSString> musicLocalizedlabelText;
  objc::Strong<UIStackView> bottomButtonsStackView;
  // Switches the mode; shows the other one's icon.
  objc::Strong<ButtonWithIncreasedTouchArea> topRightCornerButton;
  int modeType;  // 0 both modes, 1 durations only, 2 songs only
  long pickerMinutesSteps;
  long defaultTimerPickerValue;    // minutes
  long defaultNbSongsPickerValue;  // songs
  objc::Strong<UIButton> leftButton;
  objc::Strong<UIButton> rightButton;
  objc::Strong<ButtonWithIncreasedTouchArea> topLeftCornerButton;
  objc::Strong<UIDatePicker> timeSelectorPickerView;
  objc::Strong<UIPickerView> nbSongsPickerView;

  // ChooseSnoozeTimeView.cpp: the elements and their places
  id initWithFrame(CGRect frame);
  CGRect frame();
  void layoutSubviews();
  void setupView();
  void addTimeSelectorPickerView();
  void addNbSongsSelectorPickerView();
  void addButtons();
  void addToggleModesButton();
  void addSettingsButton();

  // ChooseSnoozeTimeViewModes.cpp: the two modes, and the presets
  void toggleModes();
  void showTimerMode();
  void showSongMode();
  void setModeType(int type);
  void setPickerMinutesSteps(long minutes);
  void setDefaultTimerPickerValue(long minutes);
  void setDefaultNbSongsPickerValue(long songs);

  // ChooseSnoozeTimeViewSongs.cpp: the songs picker's data source and delegate
  long nbSongsSelected();
  void addOrRemovePluralForRow(long row);
  long numberOfComponentsInPickerView(UIPickerView picker);
  long pickerView_numberOfRowsInComponent(UIPickerView picker, long component);
  double pickerView_rowHeightForComponent(UIPickerView picker, long component);
  NSString pickerView_titleForRow_forComponent(UIPickerView picker, long row, long component);
  UIView pickerView_viewForRow_forComponent_reusingView(UIPickerView picker, long row,
                                                        long component, UIView reusable);
  void pickerView_didSelectRow_inComponent(UIPickerView picker, long row, long component);

 private:
  UIView view() const { return UIView(self()); }
  CGSize container() const { return view().frame().size; }
};
