// Reads a property list that somebody wrote by hand: what is not as it should be is told with its
// place.
#pragma once

#include <plist/plist.h>

#include <optional>
#include <string>
#include <vector>

#include "simulator/cephei/SettingsApp.h"

namespace sim {

// A node, which the list owns. Every reader throws SpecifierError for a node of another kind.
class NodeReader {
 public:
  // `place` begins the errors.
  NodeReader(plist_t node, std::string place) : node_(node), place_(std::move(place)) {}

  // Of a dictionary.
  std::optional<NodeReader> member(const char* key) const;
  NodeReader required(const char* key) const;
  // Of an array.
  std::vector<NodeReader> elements() const;
  std::string string() const;
  // A boolean, a number, a string or data.
  SettingsValue value() const;

  [[noreturn]] void fail(const std::string& problem) const;

 private:
  void expect(plist_type type, const char* kind) const;

  plist_t node_;
  std::string place_;  // "FILE: items[3].key"
};

// nullopt for what no setting is.
std::optional<SettingsValue> settingsValueOf(plist_t node);

}  // namespace sim
