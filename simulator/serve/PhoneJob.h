// What a host of a served phone is to do.
#pragma once

#include <filesystem>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

namespace sim {

struct PhoneJob {
  std::filesystem::path root;                     // of the phone's files
  std::filesystem::path folder;                   // all that scripts may name lies below it
  std::vector<std::filesystem::path> extensions;  // none in safe mode
  std::vector<std::string> setup;                 // lines that pages have chosen
  std::vector<std::string> settings;              // `set` lines kept from the phone before
  std::vector<std::string> done;  // the lines up to boot that the host before has played
  nlohmann::json serve;           // as of ServeState, to begin with
  nlohmann::json state;           // of the host before, as of RestartState; null: a fresh phone
};

nlohmann::json asJson(const PhoneJob& job);
PhoneJob phoneJobFrom(const nlohmann::json& job);

}  // namespace sim
