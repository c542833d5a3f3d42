// The choose-time page as the songs picker's data source and delegate.
#include "tweak/panel/ChooseSnoozeTimeView.h"
#include "tweak/support/BundleHelper.h"
#include "tweak/support/Decimal.h"
#include "tweak/support/LocalizationHelper.h"

namespace {

constexpr double rowHeight = 32, numberWidth = 30;  // points
constexpr double captionSeconds = 0.2;

}  // namespace

long ChooseSnoozeTimeView::nbSongsSelected() {
  return nbSongsPickerView->selectedRowInComponent(0) + 1;
}

long ChooseSnoozeTimeView::numberOfComponentsInPickerView(UIPickerView) {
  return 1;
}

long ChooseSnoozeTimeView::pickerView_numberOfRowsInComponent(UIPickerView, long) {
  return 99;
}

double ChooseSnoozeTimeView::pickerView_rowHeightForComponent(UIPickerView, long) {
  return rowHeight;
}

// Never shown: a row's view takes precedence.
NSString ChooseSnoozeTimeView::pickerView_titleForRow_forComponent(UIPickerView, long row, long) {
  return NSString::string(Decimal(row).text());
}

// The numbers end just left of the caption. Rows are not reused.
UIView ChooseSnoozeTimeView::pickerView_viewForRow_forComponent_reusingView(UIPickerView picker,
                                                                            long row, long,
                                                                            UIView) {
  const double width = container().width * 0.5 + picker.frame().size.width / -5.84;
  auto holder = UILabel::make(rect(0, 0, width, rowHeight));
  const auto number = UILabel::make(rect(0, 0, numberWidth, rowHeight));
  number->setText(LocalizationHelper::getLocalizedNumberStringFrom(row + 1));
  number->setTextAlignment(UILabel::Alignment::right);
  number->setTextColor(UIColor::white());
  number->setFont(UIFont::system(23.5));
  holder->addSubview(number.get());
  return objc::autorelease(std::move(holder));
}

void ChooseSnoozeTimeView::pickerView_didSelectRow_inComponent(UIPickerView, long row, long) {
  addOrRemovePluralForRow(row);
}

void ChooseSnoozeTimeView::addOrRemovePluralForRow(long row) {
  const auto isPlural = [](UILabel caption) {
    return caption.text().isEqualToString(BundleHelper::getLocalizedStringFor("SONGS"_ns));
  };
  if (row >= 1 && isPlural(musicLabel)) return;
  // From one song to one song the transition runs and changes nothing, deliberately.
  UIKit::transition(musicLabel.get(), captionSeconds, UIKit::transitionCrossDissolve,
                    [caption = musicLabel, isPlural, row] {
                      if (row == 0 && isPlural(caption))
                        caption->setText(BundleHelper::getLocalizedStringFor("SONG"_ns));
                      else if (row >= 1 && !isPlural(caption))
                        caption->setText(BundleHelper::getLocalizedStringFor("SONGS"_ns));
                    });
}
