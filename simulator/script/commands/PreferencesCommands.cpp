// The script commands of the person who changes settings, in the settings application.
#include <algorithm>
#include <nlohmann/json.hpp>
#include <optional>
#include <stdexcept>

#include "simulator/cephei/HBPreferences.h"
#include "simulator/cephei/PreferencesFile.h"
#include "simulator/cephei/SettingsApp.h"
#include "simulator/machine/NearestName.h"
#include "simulator/machine/NumberReader.h"
#include "simulator/machine/Phone.h"
#include "simulator/script/Command.h"
#include "simulator/script/names/NameChecks.h"
#include "simulator/standin/ExtensionTexts.h"
#include "simulator/standin/KnownNames.h"

namespace sim {
namespace {

struct SetDomain {
  std::string name = "com.corvane.dozewell2";
};

std::string& domainName() {
  return Phone::current().state<SetDomain>().name;
}

std::vector<char> takeData(Arguments& words) {
  const std::string digits = words.text("bytes in hexadecimal");
  std::vector<char> bytes;
  for (std::size_t at = 0; at < digits.size(); at += 2) {
    const auto pair = std::string_view(digits).substr(at, 2);
    const auto byte = wholeNumber<unsigned>(pair, 16);
    if (pair.size() != 2 || !byte)
      words.failHere("bytes are pairs of hexadecimal digits, found " + digits);
    bytes.push_back(char(*byte));
  }
  return bytes;
}

SettingsValue takeValue(Arguments& words) {
  if (words.takeKeyword("none")) return NoValue();
  if (words.takeKeyword("YES")) return true;
  if (words.takeKeyword("NO")) return false;
  if (words.takeKeyword("data")) return takeData(words);
  const Word& word = words.word("YES, NO, a number, a string in quotes, data HEX or none");
  if (word.quoted) return word.text;
  if (const auto integer = wholeNumber<long>(word.text)) return *integer;
  if (const auto real = wholeNumber<double>(word.text)) return *real;
  throw ScriptError(word.column,
                    "expected YES, NO, a number, a string in quotes, data HEX or "
                    "none, found " +
                        word.text);
}

// Of a domain that an extension uses, it reads every key at some time or names it at least. Whoever
// means another one on purpose writes the domain's file.
void requireKey(const std::string& domain, const Word& key) {
  Names read = HBPreferences::requestedKeys(domain);
  if (read.empty() && !isNamedByExtension(domain)) return;
  if (std::find(read.begin(), read.end(), key.text) != read.end()) return;
  // What is near to a key that is read is a slip, even if the extension has such a text.
  const bool isNamed = read.empty() ? isNamedByExtension(key.text)
                                    : ExtensionTexts::current().contain(key.text) &&
                                          typoSuggestion(key.text, read).empty();
  if (isNamed) return;
  if (read.empty()) read = extensionNames();
  throw ScriptError(key.column, "no extension reads the setting " + key.text + " of " + domain +
                                    didYouMean(key.text, read));
}

void set(Arguments& words) {
  const Word keyWord = words.word("a key of the domain");
  const std::string& key = keyWord.text;
  const SettingsValue value = takeValue(words);
  words.finish();
  const std::string domain = domainName();
  nameChecks().all.add([domain, keyWord] { requireKey(domain, keyWord); });
  try {
    writeSetting(preferencesFile(domain), key, value);
  } catch (const std::runtime_error& error) {
    throw ScriptError(0, error.what());
  }
  // As the notification DOMAIN/ReloadPrefs would.
  HBPreferences::domainDidChangeElsewhere(domain);
}

void chooseDomain(Arguments& words) {
  const Word name = words.word("the name of a preferences domain");
  words.finish();
  domainName() = name.text;
  nameChecks().all.add([name] { requireNoTypo("the domain", name, {}); });
}

}  // namespace

void addPreferencesCommands(CommandTable& table) {
  // The choice holds for the rest of the script, restarts of the host included.
  Phone::current().survives("preferences-domain",
                            {[] { return nlohmann::json(domainName()); },
                             [](const nlohmann::json& saved) { saved.get_to(domainName()); }});
  table.add(
      {"set", Stage::any, "set KEY YES|NO|NUMBER|STRING|data HEX|none", "set volumeFadeOutTime 10",
       "The user changes a setting; none removes it, so that its default holds again. A key that "
       "an extension which uses the domain does not read is an error.",
       set});
  table.add({"preferences-domain", Stage::any, "preferences-domain NAME",
             "preferences-domain com.corvane.dozewell2",
             "Which preferences domain the following `set` lines change.", chooseDomain});
}

}  // namespace sim
