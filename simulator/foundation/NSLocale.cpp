#include "simulator/foundation/NSLocale.h"

#include <algorithm>

#include "simulator/foundation/Kind.h"
#include "simulator/foundation/Values.h"
#include "simulator/machine/Phone.h"
#include "simulator/standin/StandIn.h"

namespace sim {
namespace {

using objc::Object;

Object makeWithIdentifier(Object identifier) {
  objc::Strong<Object> made = NSLocale::make();
  NSLocale::of(made.get()).identifier = text(identifier);
  return autorelease(std::move(made));
}

Object initWithIdentifier(Object self, Object identifier) {
  NSLocale::of(self).identifier = text(identifier);
  return self;
}

Object currentLocale() {
  return makeWithIdentifier(string(Phone::current().setup.locale));
}

Object preferredLanguages() {
  const LocaleParts parts = partsOf(Phone::current().setup.locale);
  std::string language = parts.language;
  if (!parts.script.empty()) language += '-' + parts.script;
  if (!parts.region.empty()) language += '-' + parts.region;
  return array({string(language)});
}

const std::string& identifier(Object self) {
  return NSLocale::of(self).identifier;
}

Object localeIdentifier(Object self) {
  return string(identifier(self));
}
Object languageCode(Object self) {
  return string(partsOf(identifier(self)).language);
}
Object countryCode(Object self) {
  const std::string region = partsOf(identifier(self)).region;
  return region.empty() ? nullptr : string(region);
}
Object scriptCode(Object self) {
  const std::string script = partsOf(identifier(self)).script;
  return script.empty() ? nullptr : string(script);
}

bool isEqual(Object self, Object other) {
  const NSLocale* state = stateOf<NSLocale>(other);
  return state != nullptr && state->identifier == identifier(self);
}
unsigned long hash(Object self) {
  return std::hash<std::string>()(identifier(self));
}

}  // namespace

LocaleParts partsOf(std::string_view identifier) {
  identifier = identifier.substr(0, identifier.find('@'));
  LocaleParts parts;
  while (!identifier.empty()) {
    const std::size_t end = std::min(identifier.find_first_of("_-"), identifier.size());
    const std::string part(identifier.substr(0, end));
    identifier.remove_prefix(std::min(end + 1, identifier.size()));
    if (parts.language.empty())
      parts.language = part;
    else if (part.size() == 4)
      parts.script = part;
    else
      parts.region = part;
  }
  return parts;
}

void NSLocale::registerClass() {
  StandIn<NSLocale>("Foundation", "NSLocale", "NSObject")
      .classMethod<"currentLocale", &currentLocale>()
      .classMethod<"localeWithLocaleIdentifier:", &makeWithIdentifier>()
      .partialClassMethod<"preferredLanguages", &preferredLanguages>("the locale's language alone")
      .method<"initWithLocaleIdentifier:", &initWithIdentifier>()
      .method<"localeIdentifier", &localeIdentifier>()
      .method<"languageCode", &languageCode>()
      .method<"countryCode", &countryCode>()
      .method<"scriptCode", &scriptCode>()
      .method<"isEqual:", &isEqual>()
      .method<"hash", &hash>()
      .method<"copyWithZone:", &shareAsCopy>()
      .finish();
}

}  // namespace sim
