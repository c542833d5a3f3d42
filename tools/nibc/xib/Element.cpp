#include "tools/nibc/xib/Element.h"

#include <charconv>
#include <cmath>

#include "tools/nibc/nib/Quoting.h"

namespace xib {
namespace {

template <class Number>
std::optional<Number> parsed(const std::string& text) {
  Number number{};
  const char* end = text.data() + text.size();
  const auto result = std::from_chars(text.data(), end, number);
  if (result.ec != std::errc() || result.ptr != end) return std::nullopt;
  return number;
}

std::string listed(std::span<const Choice> choices) {
  std::string list;
  for (const Choice& each : choices) list += (list.empty() ? "" : ", ") + std::string(each.name);
  return list;
}

}  // namespace

Element::Element(const Source& source, pugi::xml_node node) : source_(&source), node_(node) {
  std::set<std::string> names;
  for (const auto& attribute : node_.attributes())
    if (!names.insert(attribute.name()).second)
      failAt(attribute.name(), nib::quoted(attribute.name()) + " occurs twice");
}

Position Element::position() const {
  return source_->position(std::size_t(node_.offset_debug()) - 1);  // of the angle bracket
}

std::optional<std::string> Element::text(const char* attribute) {
  const pugi::xml_attribute found = node_.attribute(attribute);
  if (!found) return std::nullopt;
  readAttributes_.insert(attribute);
  return found.value();
}

std::string Element::requiredText(const char* attribute) {
  if (!has(attribute)) fail("<" + std::string(name()) + "> has no " + nib::quoted(attribute));
  std::string found = *text(attribute);
  if (found.empty()) failAt(attribute, nib::quoted(attribute) + " is empty");
  return found;
}

bool Element::flag(const char* attribute, bool otherwise) {
  static constexpr Choice choices[] = {{"YES", 1}, {"NO", 0}};
  return choice(attribute, choices).value_or(otherwise) != 0;
}

std::optional<double> Element::number(const char* attribute) {
  const auto found = text(attribute);
  if (!found) return std::nullopt;
  const auto value = parsed<double>(*found);
  if (!value || !std::isfinite(*value))
    failAt(attribute, nib::quoted(*found) + " is no number (" + attribute + ")");
  return value;
}

double Element::requiredNumber(const char* attribute) {
  requiredText(attribute);
  return *number(attribute);
}

std::optional<std::int64_t> Element::integer(const char* attribute) {
  const auto found = text(attribute);
  if (!found) return std::nullopt;
  const auto value = parsed<std::int64_t>(*found);
  if (!value) failAt(attribute, nib::quoted(*found) + " is no whole number (" + attribute + ")");
  return value;
}

std::optional<int> Element::choice(const char* attribute, std::span<const Choice> choices) {
  const auto found = text(attribute);
  if (!found) return std::nullopt;
  for (const Choice& each : choices)
    if (*found == each.name) return each.value;
  failAt(attribute, nib::quoted(*found) + " is not supported as " + nib::quoted(attribute) +
                        ", which can be: " + listed(choices));
}

void Element::ignore(std::initializer_list<const char*> attributes) {
  readAttributes_.insert(attributes.begin(), attributes.end());
}

std::optional<Element> Element::take(const char* name, const char* key) {
  std::optional<Element> found;
  for (const pugi::xml_node each : node_.children(name)) {
    if (std::string_view(each.attribute("key").value()) != key) continue;
    readChildren_.insert(each.offset_debug());
    Element candidate(*source_, each);
    candidate.ignore({"key"});
    if (found) candidate.fail("a second <" + std::string(name) + "> in the same element");
    found = candidate;
  }
  return found;
}

std::optional<Element> Element::child(const char* name, const char* key) {
  return take(name, key);
}

std::optional<Element> Element::child(const char* name) {
  return take(name, "");
}

std::vector<Element> Element::children() {
  std::vector<Element> elements;
  for (const pugi::xml_node each : node_.children())
    if (each.type() == pugi::node_element && readChildren_.insert(each.offset_debug()).second)
      elements.emplace_back(*source_, each);
  return elements;
}

void Element::ignoreChildren(std::initializer_list<const char*> names) {
  for (const char* name : names)
    for (const pugi::xml_node each : node_.children(name))
      readChildren_.insert(each.offset_debug());
}

std::string Element::content() {
  std::string text;
  for (const pugi::xml_node each : node_.children()) {
    if (each.type() == pugi::node_element) continue;
    readChildren_.insert(each.offset_debug());
    text += each.value();
  }
  return text;
}

void Element::finish() const {
  const std::string self = "<" + std::string(name()) + ">";
  for (const auto& each : node_.attributes())
    if (!readAttributes_.contains(each.name()))
      failAt(each.name(), nib::quoted(each.name()) + " of " + self + " is not supported");
  for (const pugi::xml_node each : node_.children()) {
    if (readChildren_.contains(each.offset_debug())) continue;
    if (each.type() != pugi::node_element) fail("text inside of " + self + " is not supported");
    const std::string key = each.attribute("key").value();
    Element(*source_, each)
        .fail("<" + std::string(each.name()) + (key.empty() ? "" : " key=" + nib::quoted(key)) +
              "> inside of " + self + " is not supported");
  }
}

void Element::fail(const std::string& problem) const {
  throw Error(position(), problem);
}

void Element::failAt(const char* attribute, const std::string& problem) const {
  const auto tag = std::size_t(node_.offset_debug());
  const std::size_t at = source_->attributeOffset(tag, attribute);
  throw Error(at == tag ? position() : source_->position(at), problem);
}

}  // namespace xib
