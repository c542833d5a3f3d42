#include "simulator/serve/PhoneJob.h"

namespace sim {

using nlohmann::json;

json asJson(const PhoneJob& job) {
  json extensions = json::array();
  for (const auto& each : job.extensions) extensions.push_back(each.string());
  return {{"root", job.root.string()},
          {"folder", job.folder.string()},
          {"extensions", std::move(extensions)},
          {"setup", job.setup},
          {"settings", job.settings},
          {"done", job.done},
          {"serve", job.serve},
          {"state", job.state}};
}

PhoneJob phoneJobFrom(const json& from) {
  PhoneJob job;
  job.root = from.at("root").get<std::string>();
  job.folder = from.at("folder").get<std::string>();
  for (const json& each : from.at("extensions"))
    job.extensions.emplace_back(each.get<std::string>());
  from.at("setup").get_to(job.setup);
  from.at("settings").get_to(job.settings);
  from.at("done").get_to(job.done);
  job.serve = from.at("serve");
  job.state = from.at("state");
  return job;
}

}  // namespace sim
