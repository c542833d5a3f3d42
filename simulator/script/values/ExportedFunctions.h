// The types of C functions that scripts call: C has none at run time.
#pragma once

#include <map>
#include <string>
#include <string_view>

namespace sim {

class ExportedFunctions {
 public:
  // Knows the functions that this project's extension exports.
  ExportedFunctions();

  // `types` is an encoding: result, arguments. Throws std::invalid_argument when it is none, or
  // when the function is known with other types: a call with wrong ones would destroy the phone.
  void declare(const std::string& name, const std::string& types);
  // nullptr when the function is not declared.
  const std::string* types(std::string_view name) const;

  const std::map<std::string, std::string, std::less<>>& all() const { return types_; }

 private:
  std::map<std::string, std::string, std::less<>> types_;
};

}  // namespace sim
