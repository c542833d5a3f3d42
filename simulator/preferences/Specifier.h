// What a pane of the phone's Settings application is described by: a list of specifiers.
#pragma once

#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "simulator/cephei/SettingsApp.h"

namespace sim {

// Names the file and the place in it: "…/Dozewell2.plist: items[3].key: expected a string".
class SpecifierError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

enum class Cell { group, toggle, list, text, link };

struct Specifier {
  Cell cell = Cell::group;
  std::string label;  // texts as the file has them, before they are localised
  std::string footer;
  std::string placeholder;

  // Of what changes a setting: where it is stored, what holds as long as nothing is, and the
  // notification that tells of a change.
  std::string key;
  std::string domain;
  std::string notification;  // empty: none
  SettingsValue standard;
  // Of a list, one title for each value.
  std::vector<std::string> titles;
  std::vector<SettingsValue> values;
};

// One file.
struct SpecifierList {
  struct Entry {
    std::string label;
    std::string icon;  // name of a file beside the list; empty: none
  };

  std::filesystem::path file;  // on this machine
  std::optional<Entry> entry;  // nothing: only links of other lists lead here
  std::string title;
  std::vector<Specifier> items;
};

// Throws SpecifierError.
SpecifierList readSpecifierList(const std::filesystem::path& file);

// 15 and 15.0 are the same.
bool areEqual(const SettingsValue& left, const SettingsValue& right);

}  // namespace sim
