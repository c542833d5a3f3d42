#include "simulator/preferences/Specifier.h"

#include <map>

#include "simulator/foundation/PropertyListNode.h"
#include "simulator/preferences/NodeReader.h"

namespace sim {
namespace {

const std::map<std::string, Cell, std::less<>> cells = {{"PSGroupCell", Cell::group},
                                                        {"PSSwitchCell", Cell::toggle},
                                                        {"PSLinkListCell", Cell::list},
                                                        {"PSEditTextCell", Cell::text},
                                                        {"PSLinkCell", Cell::link}};

Cell cellOf(const NodeReader& item) {
  const NodeReader name = item.required("cell");
  const auto found = cells.find(name.string());
  if (found == cells.end()) name.fail("this Settings application has no " + name.string());
  return found->second;
}

void readSetting(const NodeReader& item, Specifier& specifier) {
  specifier.key = item.required("key").string();
  specifier.domain = item.required("defaults").string();
  if (const auto name = item.member("PostNotification")) specifier.notification = name->string();
  if (const auto value = item.member("default")) specifier.standard = value->value();
}

void readChoices(const NodeReader& item, Specifier& specifier) {
  const NodeReader titles = item.required("validTitles"), values = item.required("validValues");
  for (const NodeReader& title : titles.elements()) specifier.titles.push_back(title.string());
  for (const NodeReader& value : values.elements()) specifier.values.push_back(value.value());
  if (specifier.titles.size() != specifier.values.size())
    values.fail("expected " + std::to_string(specifier.titles.size()) +
                ", as many as there are titles, found " + std::to_string(specifier.values.size()));
}

Specifier readSpecifier(const NodeReader& item) {
  Specifier specifier;
  specifier.cell = cellOf(item);
  const auto textAt = [&item](const char* key) {
    const auto found = item.member(key);
    return found ? found->string() : std::string();
  };
  specifier.label =
      specifier.cell == Cell::group ? textAt("label") : item.required("label").string();
  specifier.footer = textAt("footerText");
  specifier.placeholder = textAt("placeholder");
  if (specifier.cell != Cell::group && specifier.cell != Cell::link) readSetting(item, specifier);
  if (specifier.cell == Cell::list) readChoices(item, specifier);
  return specifier;
}

SpecifierList::Entry readEntry(const NodeReader& entry) {
  const NodeReader cell = entry.required("cell");
  if (cell.string() != "PSLinkCell") cell.fail("expected PSLinkCell, found " + cell.string());
  const auto icon = entry.member("icon");
  return {entry.required("label").string(), icon ? icon->string() : std::string()};
}

double asNumber(const SettingsValue& value, bool* isNumber) {
  *isNumber = true;
  if (const auto* integer = std::get_if<long>(&value)) return double(*integer);
  if (const auto* real = std::get_if<double>(&value)) return *real;
  if (const auto* truth = std::get_if<bool>(&value)) return *truth ? 1 : 0;
  *isNumber = false;
  return 0;
}

}  // namespace

SpecifierList readSpecifierList(const std::filesystem::path& file) {
  std::string error;
  const PropertyListNode root = loadNode(file, &error);
  if (!root) throw SpecifierError(error);
  const NodeReader list(root.get(), file.string() + ": ");
  SpecifierList made{file, std::nullopt, {}, {}};
  if (const auto entry = list.member("entry")) made.entry = readEntry(*entry);
  if (const auto title = list.member("title")) made.title = title->string();
  const NodeReader items = list.required("items");
  for (const NodeReader& item : items.elements()) made.items.push_back(readSpecifier(item));
  return made;
}

bool areEqual(const SettingsValue& left, const SettingsValue& right) {
  bool leftIsNumber = false, rightIsNumber = false;
  const double a = asNumber(left, &leftIsNumber), b = asNumber(right, &rightIsNumber);
  if (leftIsNumber || rightIsNumber) return leftIsNumber && rightIsNumber && a == b;
  const auto *one = std::get_if<std::string>(&left), *other = std::get_if<std::string>(&right);
  return one != nullptr && other != nullptr && *one == *other;
}

}  // namespace sim
