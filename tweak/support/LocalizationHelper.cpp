#include "tweak/support/LocalizationHelper.h"

#include "tweak/support/Decimal.h"

namespace {

// Anywhere in the identifier, deliberately: "en_AR" has no "ar", "mar_IN" has.
bool localeContains(const char* code) {
  return NSLocale::currentLocale().localeIdentifier().containsString(NSString::string(code));
}

bool isArabic() {
  return localeContains("ar");
}

objc::Strong<NSNumberFormatter> arabicFormatter() {
  auto formatter = NSNumberFormatter::make();
  formatter->setLocale(NSLocale::localeWithLocaleIdentifier("ar"_ns));
  return formatter;
}

}  // namespace

NSString LocalizationHelper::getLocalizedNumberStringFrom(long number) {
  if (!isArabic()) return NSString::string(Decimal(number).text());
  return arabicFormatter()->stringFromNumber(NSNumber::numberWithInteger(number));
}

NSString LocalizationHelper::replaceNumbersWithLocalizedNumbersFromString(NSString text) {
  if (!isArabic()) return text;
  const auto formatter = arabicFormatter();
  for (long digit = 0; digit <= 9; ++digit) {
    text = text.stringByReplacingOccurrencesOfString(
        NSString::string(Decimal(digit).text()),
        formatter->stringFromNumber(NSNumber::numberWithInteger(digit)));
  }
  return text;
}

bool LocalizationHelper::languageSupportsPlural() {
  for (const char* code : {"ar", "ko", "zh", "ms", "it", "de"}) {
    if (localeContains(code)) return false;
  }
  return true;
}

Class LocalizationHelper::registerClass() {
  using Helper = LocalizationHelper;
  return objc::ClassBuilder<Helper>("LocalizationHelper", "NSObject")
      .classMethod<"getLocalizedNumberStringFrom:", &Helper::getLocalizedNumberStringFrom>()
      .classMethod<"replaceNumbersWithLocalizedNumbersFromString:",
                   &Helper::replaceNumbersWithLocalizedNumbersFromString>()
      .classMethod<"languageSupportsPlural", &Helper::languageSupportsPlural>()
      .finish();
}
