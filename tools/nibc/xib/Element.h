// An XML element that remembers what was read of it: what nobody has asked for by the time of
// finish() is something that the compiler does not support, and an error.
#pragma once

#include <initializer_list>
#include <optional>
#include <pugixml.hpp>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "tools/nibc/xib/Source.h"

namespace xib {

// A word that an attribute may have as its value.
struct Choice {
  const char* name;
  int value;
};

class Element {
 public:
  // The source must outlive the element. Throws Error when an attribute occurs twice.
  Element(const Source& source, pugi::xml_node node);

  std::string_view name() const { return node_.name(); }
  Position position() const;
  bool has(const char* attribute) const { return bool(node_.attribute(attribute)); }

  // Attributes. All throw Error when the value is none of the type.
  std::optional<std::string> text(const char* attribute);
  std::string requiredText(const char* attribute);
  bool flag(const char* attribute, bool otherwise);
  std::optional<double> number(const char* attribute);
  double requiredNumber(const char* attribute);
  std::optional<std::int64_t> integer(const char* attribute);
  std::optional<int> choice(const char* attribute, std::span<const Choice> choices);
  // Attributes that matter to Interface Builder alone.
  void ignore(std::initializer_list<const char*> attributes);

  // The child with this name and this value of its attribute "key"; both count as read.
  std::optional<Element> child(const char* name, const char* key);
  // The child with this name and without a key. Throws Error when there are two.
  std::optional<Element> child(const char* name);
  // All children that were not read yet.
  std::vector<Element> children();
  void ignoreChildren(std::initializer_list<const char*> names);
  // The text between the tags.
  std::string content();

  // Throws Error about the first attribute or child that was not read.
  void finish() const;

  [[noreturn]] void fail(const std::string& problem) const;
  [[noreturn]] void failAt(const char* attribute, const std::string& problem) const;

 private:
  std::optional<Element> take(const char* name, const char* key);

  const Source* source_;
  pugi::xml_node node_;
  std::set<std::string> readAttributes_;
  std::set<std::ptrdiff_t> readChildren_;  // by their offsets
};

}  // namespace xib
