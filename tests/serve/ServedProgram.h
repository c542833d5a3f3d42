// Runs dozewell-simulator serve as a user does, and asks it as a page does.
#pragma once

#include <httplib.h>
#include <sys/resource.h>
#include <sys/types.h>

#include <filesystem>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <vector>

#include "simulator/host/TemporaryFolder.h"

namespace sim {

using nlohmann::json;

// A folder that is gone at the end of the test.
class TestFolder : public TemporaryFolder {
 public:
  std::string write(const std::string& name, const std::string& content) const;
};

struct Answer {
  int status = 0;  // 0: the connection failed
  std::string body;
  httplib::Headers headers;

  json asJson() const { return json::parse(body); }
  std::string error() const { return asJson().at("error"); }
  std::string header(const std::string& name) const;
};

class ServedProgram {
 public:
  // Time stands still unless a test moves it. Without music, unless there are words. Throws
  // std::runtime_error, with what the program says, when that ends instead of serving.
  // `descriptors`: how many it may have; none: as many as this process.
  explicit ServedProgram(std::vector<std::string> words = {},
                         std::optional<rlim_t> descriptors = std::nullopt);
  ~ServedProgram();
  ServedProgram(const ServedProgram&) = delete;
  ServedProgram& operator=(const ServedProgram&) = delete;

  int port() const { return port_; }
  std::string host() const { return "127.0.0.1:" + std::to_string(port_); }
  // What it has printed: "/0123456789abcdef/?token=…", and the parts of it.
  std::string entrance() const { return "/" + place_ + "/?token=" + token_; }
  const std::string& place() const { return place_; }
  const std::string& token() const { return token_; }
  // "Authorization: …", as scripts send it.
  httplib::Headers secret() const { return {{"Authorization", "Bearer " + token_}}; }

  // One that shows the secret with every request, and one that does not.
  httplib::Client client() const;
  httplib::Client stranger() const;

  Answer get(const std::string& path, const httplib::Headers& headers = {}) const;
  Answer post(const std::string& path, const json& body) const;
  // Of one or several lines.
  Answer command(const json& lines) const;
  // What `get TARGET` prints.
  std::string value(const std::string& target) const;
  // As the program prints journals.
  std::string journal() const;

  // Of the supervisor, which was started, and of the host.
  pid_t process() const { return process_; }
  pid_t hostProcess() const;
  // Of memory, of both.
  long residentKilobytes() const;

  // Has it end, and gives its exit status; -1 when a signal ended it.
  int end(int signal);
  // What it has said on standard error.
  std::string errors() const;

 private:
  int wait();

  TestFolder folder_;
  pid_t process_ = 0;
  int port_ = 0;
  std::string place_, token_;
};

// Empty when it cannot be read.
std::string contentOf(const std::filesystem::path& file);

// What the server answered, as tests compare it.
Answer answerFrom(const httplib::Result& result);

inline constexpr const char* timerOfOneMinute =
    "send Dozewell2Manager.sharedInstance startTimerWithMode:andValue: 0 60";

// Plays a script headless; the journal that is printed.
std::string playHeadless(const std::string& script, const std::string& options = "");

}  // namespace sim
