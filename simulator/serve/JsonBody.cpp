#include "simulator/serve/JsonBody.h"

#include <algorithm>
#include <cmath>

#include "simulator/machine/Journal.h"
#include "simulator/serve/RequestError.h"

namespace sim {

using nlohmann::json;

namespace {

constexpr std::size_t mostLines = 1000;

[[noreturn]] void expect(const std::string& what) {
  throw RequestError(400, "expected " + what);
}

std::string lineFrom(const json& line, const char* name) {
  if (!line.is_string()) expect(std::string(name) + " to hold lines of text");
  auto text = line.get<std::string>();
  if (text.find_first_of("\r\n") != std::string::npos)
    expect("lines without line breaks, one command in each");
  return text;
}

}  // namespace

JsonBody::JsonBody(const std::string& text, std::initializer_list<std::string_view> members)
    : json_(json::parse(text, nullptr, false)) {
  if (!json_.is_object()) expect("a JSON object");
  for (const auto& [name, value] : json_.items()) {
    if (std::find(members.begin(), members.end(), name) != members.end()) continue;
    std::string known;
    for (const std::string_view each : members)
      known += (known.empty() ? "" : ", ") + std::string(each);
    expect("no members but " + known + ", found " + name);
  }
}

std::string JsonBody::text(const char* name, std::size_t longest) const {
  const auto found = json_.find(name);
  if (found == json_.end() || !found->is_string()) expect(std::string(name) + " to be text");
  auto text = found->get<std::string>();
  if (text.size() > longest)
    expect(std::string(name) + " to be at most " + std::to_string(longest) + " bytes long");
  return text;
}

std::optional<double> JsonBody::number(const char* name, double least, double most) const {
  const auto found = json_.find(name);
  if (found == json_.end()) return std::nullopt;
  const double value = found->is_number() ? found->get<double>() : most + 1;
  // Negated, so that what is no number fails.
  if (!(value >= least && value <= most))
    expect(std::string(name) + " to be a number from " + notation(least) + " to " + notation(most));
  return value;
}

std::optional<long> JsonBody::wholeNumber(const char* name, long least, long most) const {
  const auto value = number(name, double(least), double(most));
  if (value && *value != std::floor(*value)) expect(std::string(name) + " to be a whole number");
  return value ? std::optional(long(*value)) : std::nullopt;
}

std::optional<bool> JsonBody::flag(const char* name) const {
  const auto found = json_.find(name);
  if (found == json_.end()) return std::nullopt;
  if (!found->is_boolean()) expect(std::string(name) + " to be true or false");
  return found->get<bool>();
}

std::vector<std::string> JsonBody::lines(const char* name) const {
  const auto found = json_.find(name);
  if (found == json_.end() || !found->is_array() || found->size() > mostLines)
    expect(std::string(name) + " to be a list of at most " + std::to_string(mostLines) + " lines");
  std::vector<std::string> lines;
  for (const json& line : *found) lines.push_back(lineFrom(line, name));
  return lines;
}

std::string JsonBody::word(const char* name, std::initializer_list<const char*> words,
                           const char* otherwise) const {
  const auto found = json_.find(name);
  if (found == json_.end()) return otherwise;
  std::string choices;
  for (const char* each : words) {
    if (*found == each) return each;
    choices += (choices.empty() ? "" : " or ") + sim::quoted(each);
  }
  expect(std::string(name) + " to be " + choices);
}

}  // namespace sim
