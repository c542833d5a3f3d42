#include "tweak/support/LocalizationHelper.h"

#include "objc/Class.h"

namespace {

// Anywhere in the identifier, as the extension has always looked. "mar_IN" holds an "ar", and so
// Marathi gets Arabic digits, which a comparison of languages would end; "en_AR" holds none, for
// case counts (format-time-left-ar-anywhere, format-time-left-region-is-not-arabic).
bool localeContains(const char* code) {
  return NSLocale::currentLocale().localeIdentifier().containsString(NSString::string(code));
}

bool isArabic() {
  return localeContains("ar");
}

NSString decimal(long number) {
  return NSString::stringWithFormat("%ld"_ns, number);
}

objc::Strong<NSNumberFormatter> arabicFormatter() {
  auto formatter = NSNumberFormatter::make();
  // Of the bare language: a region may prefer Western digits.
  formatter->setLocale(NSLocale::localeWithLocaleIdentifier("ar"_ns));
  return formatter;
}

struct LocalizationHelperImplementation : objc::Implementation<LocalizationHelperImplementation> {
  static NSString getLocalizedNumberStringFrom(long number) {
    if (!isArabic()) return decimal(number);
    return arabicFormatter()->stringFromNumber(NSNumber::numberWithInteger(number));
  }

  // Digit by digit: what stands between them, such as the colons of a clock, stays.
  static NSString replaceNumbersWithLocalizedNumbersFromString(NSString text) {
    if (!isArabic()) return text;
    const auto formatter = arabicFormatter();
    for (long digit = 0; digit <= 9; ++digit) {
      text = text.stringByReplacingOccurrencesOfString(
          decimal(digit), formatter->stringFromNumber(NSNumber::numberWithInteger(digit)));
    }
    return text;
  }

  static bool languageSupportsPlural() {
    for (const char* code : {"ar", "ko", "zh", "ms", "it", "de"}) {
      if (localeContains(code)) return false;
    }
    return true;
  }
};

}  // namespace

Class LocalizationHelper::cls() {
  return LocalizationHelperImplementation::cls();
}

objc::Registration LocalizationHelper::registerClass() {
  using Self = LocalizationHelperImplementation;
  return objc::ClassBuilder<Self>("LocalizationHelper", "NSObject")
      .classMethod<"getLocalizedNumberStringFrom:", &Self::getLocalizedNumberStringFrom>()
      .classMethod<"replaceNumbersWithLocalizedNumbersFromString:",
                   &Self::replaceNumbersWithLocalizedNumbersFromString>()
      .classMethod<"languageSupportsPlural", &Self::languageSupportsPlural>()
      .finish();
}
