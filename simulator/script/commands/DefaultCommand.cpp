// default KEY VALUE: a user default of the host, written into its file.

#include "simulator/foundation/NSDate.h"
#include "simulator/foundation/NSUserDefaults.h"
#include "simulator/foundation/PropertyList.h"
#include "simulator/foundation/UserDefaultsFile.h"
#include "simulator/foundation/Values.h"
#include "simulator/machine/Phone.h"
#include "simulator/script/Command.h"
#include "simulator/script/names/NameChecks.h"
#include "simulator/standin/KnownNames.h"

namespace sim {
namespace {

// "+60s" and "-60s" are from now.
double dateArgument(Arguments& arguments) {
  const Word word = arguments.word("a date");
  if (word.quoted) {
    double date = 0;
    if (parseDate(word.text, date)) return date;
    throw ScriptError(word.column, "expected a date such as \"2027-01-01 22:01:00\"");
  }
  const bool later = word.text.starts_with('+');
  if (!later && !word.text.starts_with('-'))
    throw ScriptError(word.column, "expected a date such as +60s, -60s or \"2027-01-01 22:01:00\"");
  Arguments distance({{word.text.substr(1), false, word.column}}, word.column);
  const double away = seconds(distance.duration("a duration"));
  return Phone::current().clock.wall() + (later ? away : -away);
}

PropertyListNode numberNode(Arguments& arguments, const std::string& text) {
  const bool isReal = text.find_first_of(".eE") != text.npos;
  if (isReal) return PropertyListNode(plist_new_real(arguments.number("a value")));
  return makeInteger(
      {arguments.integer("a string in quotes, a number, YES, NO, date or none"), false});
}

// Empty for "none".
PropertyListNode valueArgument(Arguments& arguments) {
  const Word* next = arguments.peek();
  if (next != nullptr && next->quoted)
    return PropertyListNode(plist_new_string(arguments.text("a value").c_str()));
  if (arguments.takeKeyword("none")) return nullptr;
  if (arguments.takeKeyword("YES")) return PropertyListNode(plist_new_bool(1));
  if (arguments.takeKeyword("NO")) return PropertyListNode(plist_new_bool(0));
  if (arguments.takeKeyword("date")) return makeDate(dateArgument(arguments));
  return numberNode(arguments, next != nullptr ? next->text : "");
}

void runDefault(Arguments& arguments) {
  const Word keyWord = arguments.word("a key");
  const std::string& key = keyWord.text;
  PropertyListNode value = valueArgument(arguments);
  arguments.finish();
  nameChecks().all.add([keyWord] { requireNoTypo("the user default", keyWord, {}); });
  const bool hasClasses = objc_getClass("NSUserDefaults") != nullptr;  // the phone has booted
  const objc::Object object =
      hasClasses && value ? propertyListObject(value.get()) : objc::Object();
  const PropertyListNode defaults = loadUserDefaults();
  plist_dict_remove_item(defaults.get(), key.c_str());
  if (value) plist_dict_set_item(defaults.get(), key.c_str(), value.release());
  if (!saveUserDefaults(defaults.get()))
    throw ScriptError(0, "cannot write " + userDefaultsFile().string());
  if (hasClasses) userDefaultChanged(string(key), object);
}

}  // namespace

void addFoundationCommands(CommandTable& table) {
  table.add({"default", Stage::any, "default KEY VALUE", "default \"com.example.due\" date +60s",
             "Gives a user default of the host a value: a string in quotes, a number, YES, NO, "
             "date +60s, date \"2027-01-01 22:01:00\", or none to remove it.",
             runDefault});
}

}  // namespace sim
