#include "tweak/support/SpokenText.h"

#include "tweak/support/BundleHelper.h"
#include "tweak/support/LocalizationHelper.h"
#include "tweak/support/PluralForm.h"

namespace {

NSString lookUp(NSString key) {
  return BundleHelper::getBundle().localizedStringForKey(key, key, "Accessibility"_ns);
}

const char* suffix(PluralForm form) {
  switch (form) {
    case PluralForm::one:
      return "_ONE";
    case PluralForm::two:
      return "_TWO";
    case PluralForm::few:
      return "_FEW";
    case PluralForm::other:
      break;
  }
  return "_OTHER";
}

}  // namespace

NSString SpokenText::localized(const char* key) {
  return lookUp(NSString::string(key));
}

NSString SpokenText::counted(const char* key, long number) {
  const auto form = pluralForm(localized("PLURAL_RULE"), number);
  const auto whole = NSMutableString::string();
  whole.appendString(NSString::string(key));
  whole.appendString(NSString::string(suffix(form)));
  // Not as a format: of what the table does not have, or of no table at all, nothing is made.
  return lookUp(whole).stringByReplacingOccurrencesOfString(
      "%@"_ns, LocalizationHelper::getLocalizedNumberStringFrom(number));
}
