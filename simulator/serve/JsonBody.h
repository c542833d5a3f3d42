// The body of a request, read strictly: whatever is missing, of another kind or unknown is refused
// with words that say what was expected. Every reader throws RequestError with status 400.
#pragma once

#include <initializer_list>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace sim {

class JsonBody {
 public:
  // An object with no members but these.
  JsonBody(const std::string& text, std::initializer_list<std::string_view> members);

  bool has(const char* name) const { return json_.contains(name); }
  std::string text(const char* name, std::size_t longest) const;
  std::optional<double> number(const char* name, double least, double most) const;
  std::optional<long> wholeNumber(const char* name, long least, long most) const;
  std::optional<bool> flag(const char* name) const;
  // Lines of a script, none with a line break.
  std::vector<std::string> lines(const char* name) const;
  // One of the words; `otherwise` when it is missing.
  std::string word(const char* name, std::initializer_list<const char*> words,
                   const char* otherwise) const;

 private:
  nlohmann::json json_;
};

}  // namespace sim
