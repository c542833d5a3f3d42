// Why a request is not granted, as the page is told.
#pragma once

#include <nlohmann/json.hpp>
#include <stdexcept>
#include <string>

namespace sim {

class RequestError : public std::runtime_error {
 public:
  // The body becomes {"error": message} with these further members.
  RequestError(int httpStatus, const std::string& message,
               const nlohmann::json& moreMembers = nlohmann::json::object())
      : std::runtime_error(message), status(httpStatus), more_(moreMembers.dump()) {}

  nlohmann::json body() const {
    auto all = nlohmann::json::parse(more_);
    all["error"] = what();
    return all;
  }

  int status;

 private:
  std::string more_;  // JSON text: copying an exception must not throw on its way
};

}  // namespace sim
