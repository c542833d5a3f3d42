// The choose-time page as the songs picker's data source and delegate.
#include "tweak/panel/ChooseSnoozeTimeViewImplementation.h"
#include "tweak/support/BundleHelper.h"
#include "tweak/support/LocalizationHelper.h"

using Page = ChooseSnoozeTimeViewImplementation;

namespace {

constexpr double rowHeight = 32, numberWidth = 30;  // points
constexpr double captionSeconds = 0.2;

}  // namespace

long Page::nbSongsSelected() {
  return nbSongsPickerView->selectedRowInComponent(0) + 1;
}

long Page::numberOfComponentsInPickerView(UIPickerView) {
  return 1;
}

long Page::pickerView_numberOfRowsInComponent(UIPickerView, long) {
  return 99;
}

double Page::pickerView_rowHeightForComponent(UIPickerView, long) {
  return rowHeight;
}

// Never shown: a row's view takes precedence. Hence it counts from 0, where the view counts from 1.
NSString Page::pickerView_titleForRow_forComponent(UIPickerView, long row, long) {
  return NSString::stringWithFormat("%ld"_ns, row);
}

// The numbers end just left of the caption: they are right-aligned in a label whose width, and with
// it the picker's centre, was fitted to the caption's place. Rows are not reused: a new one is
// right in whatever language and size the page is shown.
UIView Page::pickerView_viewForRow_forComponent_reusingView(UIPickerView picker, long row, long,
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

void Page::pickerView_didSelectRow_inComponent(UIPickerView, long row, long) {
  addOrRemovePluralForRow(row);
}

void Page::addOrRemovePluralForRow(long row) {
  const auto isPlural = [](UILabel caption) {
    return caption.text().isEqualToString(BundleHelper::getLocalizedStringFor("SONGS"_ns));
  };
  if (row >= 1 && isPlural(musicLabel)) return;
  // From one song to one song the transition runs and changes nothing. Left out, nothing that a
  // user could see would be missing: a dissolve between two equal words
  // (choose-caption-dissolves, choose-caption-stays-plural).
  UIKit::transition(musicLabel.get(), captionSeconds, UIKit::transitionCrossDissolve,
                    [caption = musicLabel, isPlural, row] {
                      if (row == 0 && isPlural(caption))
                        caption->setText(BundleHelper::getLocalizedStringFor("SONG"_ns));
                      else if (row >= 1)
                        caption->setText(BundleHelper::getLocalizedStringFor("SONGS"_ns));
                    });
}
