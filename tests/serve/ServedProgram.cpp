#include "tests/serve/ServedProgram.h"

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace sim {

namespace files = std::filesystem;

namespace {

// Its standard output is the other end of the pipe, its standard error the file.
pid_t start(std::vector<std::string> words, int output, const files::path& errors,
            std::optional<rlim_t> descriptors) {
  std::vector<char*> pointers;
  for (std::string& word : words) pointers.push_back(word.data());
  pointers.push_back(nullptr);
  const pid_t child = fork();
  if (child != 0) return child;
  prctl(PR_SET_PDEATHSIG, SIGTERM);  // also of a test that is stopped
  if (descriptors) {
    const rlimit limit{*descriptors, *descriptors};
    setrlimit(RLIMIT_NOFILE, &limit);
  }
  dup2(output, STDOUT_FILENO);
  dup2(::open(errors.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600), STDERR_FILENO);
  execv(SIMULATOR, pointers.data());
  _exit(127);
}

struct Address {
  int port = 0;  // 0: it has said none
  std::string place, token;
};

// "The phone is at http://127.0.0.1:8420/0123456789abcdef/?token=…"
Address readAddress(int input) {
  FILE* stream = fdopen(input, "r");
  Address address;
  char place[17] = "", token[201] = "";
  if (std::fscanf(stream,
                  "The phone is at http://127.0.0.1:%d/%16[0-9a-f]/?token=%200[A-Za-z0-9._~-]",
                  &address.port, place, token) != 3)
    address.port = 0;
  std::fclose(stream);
  address.place = place;
  address.token = token;
  return address;
}

std::vector<pid_t> childrenOf(pid_t process) {
  const std::string name = std::to_string(process);
  std::ifstream listed("/proc/" + name + "/task/" + name + "/children");
  std::vector<pid_t> all;
  for (pid_t each = 0; listed >> each;) all.push_back(each);
  return all;
}

long residentKilobytesOf(pid_t process) {
  std::ifstream status("/proc/" + std::to_string(process) + "/status");
  for (std::string word; status >> word;) {
    long kilobytes = 0;
    if (word == "VmRSS:" && status >> kilobytes) return kilobytes;
  }
  throw std::runtime_error("it does not run");
}

}  // namespace

std::string contentOf(const files::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

Answer answerFrom(const httplib::Result& result) {
  if (!result) return {};
  return {result->status, result->body, result->headers};
}

std::string TestFolder::write(const std::string& name, const std::string& content) const {
  files::create_directories((path() / name).parent_path());
  std::ofstream(path() / name, std::ios::binary) << content;
  return (path() / name).string();
}

std::string Answer::header(const std::string& name) const {
  const auto found = headers.find(name);
  return found == headers.end() ? "" : found->second;
}

ServedProgram::ServedProgram(std::vector<std::string> words, std::optional<rlim_t> descriptors) {
  std::vector<std::string> all = {"dozewell-simulator", "serve", "--paused", "--port", "0"};
  all.insert(all.end(), words.begin(), words.end());
  if (words.empty()) all.emplace_back("--no-music");
  int pipeEnds[2];
  if (pipe2(pipeEnds, O_CLOEXEC) != 0) throw std::runtime_error("pipe2");
  process_ = start(all, pipeEnds[1], folder_.path() / "errors", descriptors);
  close(pipeEnds[1]);
  const Address address = readAddress(pipeEnds[0]);
  port_ = address.port;
  place_ = address.place;
  token_ = address.token;
  if (port_ == 0) {
    const int status = wait();
    throw std::runtime_error("it ended with " + std::to_string(status) + ": " + errors());
  }
}

ServedProgram::~ServedProgram() {
  if (process_ != 0) end(SIGTERM);
}

int ServedProgram::wait() {
  int status = 0;
  waitpid(process_, &status, 0);
  process_ = 0;
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

// The one zygote that has children has one, but while another phone is tried.
pid_t ServedProgram::hostProcess() const {
  for (const pid_t zygote : childrenOf(process_))
    if (const auto hosts = childrenOf(zygote); !hosts.empty()) return hosts.back();
  throw std::runtime_error("there is no host");
}

long ServedProgram::residentKilobytes() const {
  return residentKilobytesOf(process_) + residentKilobytesOf(hostProcess());
}

int ServedProgram::end(int signal) {
  kill(process_, signal);
  return wait();
}

std::string ServedProgram::errors() const {
  return contentOf(folder_.path() / "errors");
}

httplib::Client ServedProgram::client() const {
  httplib::Client client = stranger();
  client.set_default_headers(secret());
  return client;
}

httplib::Client ServedProgram::stranger() const {
  httplib::Client client("127.0.0.1", port_);
  client.set_read_timeout(30);
  return client;
}

Answer ServedProgram::get(const std::string& path, const httplib::Headers& headers) const {
  return answerFrom(client().Get(path, headers));
}

Answer ServedProgram::post(const std::string& path, const json& body) const {
  return answerFrom(client().Post(path, body.dump(), "application/json"));
}

Answer ServedProgram::command(const json& lines) const {
  return post("/api/command", lines.is_array() ? json{{"lines", lines}} : json{{"line", lines}});
}

std::string ServedProgram::value(const std::string& target) const {
  const Answer answer = command("get " + target);
  if (answer.status != 200) return answer.body;
  std::string output = answer.asJson().at("output");
  if (output.ends_with('\n')) output.pop_back();
  return output;
}

std::string ServedProgram::journal() const {
  std::string text;
  for (const json& entry : get("/api/journal").asJson()) {
    char time[32];
    std::snprintf(time, sizeof time, "%10.3f  ", entry.at("time").get<double>());
    text += time + entry.at("text").get<std::string>() + '\n';
  }
  return text;
}

std::string playHeadless(const std::string& script, const std::string& options) {
  const TestFolder folder;
  const std::string file = folder.write("recording.phone", script);
  const std::string output = (folder.path() / "output").string();
  const std::string command =
      "'" SIMULATOR "' play " + options + " '" + file + "' > '" + output + "' 2>&1";
  if (std::system(command.c_str()) != 0) return "it fails: " + contentOf(output);
  return contentOf(output);
}

}  // namespace sim
