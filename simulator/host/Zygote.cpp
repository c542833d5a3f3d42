#include "simulator/host/Zygote.h"

#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iostream>
#include <system_error>

#include "simulator/script/Commands.h"
#include "simulator/script/Session.h"
#include "simulator/standin/Versions.h"

namespace sim {

using nlohmann::json;

namespace {

[[noreturn]] void failFor(const char* what) {
  throw std::system_error(errno, std::generic_category(), what);
}

// Descriptors travel beside one byte, which comes before each question.
union Ancillary {
  cmsghdr header;
  char bytes[CMSG_SPACE(sizeof(Zygote::Descriptors))];
};

bool sendMark(int socket, const Zygote::Descriptors* descriptors) {
  char mark = '?';
  iovec part{&mark, 1};
  Ancillary ancillary{};
  msghdr message{};
  message.msg_iov = &part;
  message.msg_iovlen = 1;
  if (descriptors != nullptr) {
    message.msg_control = ancillary.bytes;
    message.msg_controllen = sizeof ancillary.bytes;
    cmsghdr* header = CMSG_FIRSTHDR(&message);
    header->cmsg_level = SOL_SOCKET;
    header->cmsg_type = SCM_RIGHTS;
    header->cmsg_len = CMSG_LEN(sizeof *descriptors);
    std::memcpy(CMSG_DATA(header), descriptors, sizeof *descriptors);
  }
  return sendmsg(socket, &message, MSG_NOSIGNAL) == 1;
}

// False when nobody asks any more.
bool receiveMark(int socket, Zygote::Descriptors& descriptors) {
  char mark = 0;
  iovec part{&mark, 1};
  Ancillary ancillary{};
  msghdr message{};
  message.msg_iov = &part;
  message.msg_iovlen = 1;
  message.msg_control = ancillary.bytes;
  message.msg_controllen = sizeof ancillary.bytes;
  ssize_t count = 0;
  do count = recvmsg(socket, &message, MSG_CMSG_CLOEXEC);
  while (count < 0 && errno == EINTR);
  if (count != 1) return false;
  if (const cmsghdr* header = CMSG_FIRSTHDR(&message))
    std::memcpy(&descriptors, CMSG_DATA(header), sizeof descriptors);
  return true;
}

// Where memory runs out it is the host's extension that took it: nobody else shall end for it.
void beFirstToRunOutOfMemory() {
  std::ofstream("/proc/self/oom_score_adj") << "1000";
}

class ZygoteProcess {
 public:
  ZygoteProcess(Channel channel, Zygote::Classes classes, const HostMain& main,
                const HostBeginning& beginning)
      : channel_(std::move(channel)), main_(main), commands_(allCommands()) {
    if (classes == Zygote::Classes::registered) session_.host.registerClasses();
    if (beginning) beginning(session_, commands_);
  }

  void serve() {
    Zygote::Descriptors descriptors{-1, -1, -1};
    while (receiveMark(channel_.descriptor(), descriptors)) {
      const auto question = channel_.receive();
      if (!question) return;
      if (const auto host = question->head.find("reap"); host != question->head.end())
        channel_.send({reaped(host->get<pid_t>()), {}});
      else
        channel_.send({{{"host", forked(question->head.at("job"), descriptors)}}, {}});
    }
  }

 private:
  pid_t forked(const json& job, const Zygote::Descriptors& descriptors) {
    const pid_t zygote = getpid();
    const pid_t host = fork();
    if (host == 0) beHost(zygote, job, descriptors);
    for (const int each : descriptors) close(each);
    return host < 0 ? -errno : host;
  }

  [[noreturn]] void beHost(pid_t zygote, const json& job, const Zygote::Descriptors& descriptors) {
    endWithParent(zygote);
    close(channel_.descriptor());
    beFirstToRunOutOfMemory();
    session_.phone.journal.adopt(descriptors[2]);
    HostEnds ends{Channel(descriptors[0]), descriptors[1]};
    main_(session_, commands_, ends, job);
    std::exit(0);
  }

  static json reaped(pid_t host) {
    int status = 0;
    rusage usage{};
    while (wait4(host, &status, 0, &usage) < 0 && errno == EINTR) continue;
    const auto seconds = [](const timeval& time) {
      return double(time.tv_sec) + double(time.tv_usec) * 1e-6;
    };
    return {{"status", status}, {"seconds", seconds(usage.ru_utime) + seconds(usage.ru_stime)}};
  }

  Channel channel_;
  const HostMain& main_;
  Session session_{{.script = {}, .root = "/", .extensions = {}, .playlist = {}, .folder = {}}};
  CommandTable commands_;
};

}  // namespace

bool suitsRegisteredClasses(std::string_view script) {
  constexpr std::string_view blanks = " \t\r";
  static const int registeredMajor = majorVersion(Setup().systemVersion);
  while (!script.empty()) {
    std::string_view line = script.substr(0, script.find('\n'));
    script.remove_prefix(std::min(line.size() + 1, script.size()));
    line.remove_prefix(std::min(line.find_first_not_of(blanks), line.size()));
    const std::string_view word = line.substr(0, line.find_first_of(blanks));
    if (word == "boot") return true;
    line.remove_prefix(word.size());
    line.remove_prefix(std::min(line.find_first_not_of(blanks), line.size()));
    const bool isHarmless = word.empty() || word.starts_with('#') || word == "locale" ||
                            word == "haptics" || word == "process" ||
                            (word == "ios" && majorVersion(line) == registeredMajor);
    if (!isHarmless) return false;
  }
  return false;
}

void endWithParent(pid_t parent) {
  prctl(PR_SET_PDEATHSIG, SIGKILL);
  if (getppid() != parent) _exit(1);  // it has ended already
  // The supervisor says what a Ctrl-C ends.
  std::signal(SIGINT, SIG_IGN);
  std::signal(SIGTERM, SIG_DFL);
  std::signal(SIGPIPE, SIG_DFL);
  sigset_t none;
  sigemptyset(&none);
  sigprocmask(SIG_SETMASK, &none, nullptr);
}

Zygote::Process Zygote::started(Classes classes, const HostMain& main,
                                const HostBeginning& beginning) {
  auto [ours, theirs] = Channel::makePair();
  std::cout.flush();
  std::fflush(nullptr);
  const pid_t supervisor = getpid();
  const pid_t process = fork();
  if (process < 0) failFor("fork");
  if (process > 0) return {process, std::move(ours)};
  endWithParent(supervisor);
  close(ours.descriptor());
  ZygoteProcess(std::move(theirs), classes, main, beginning).serve();
  _exit(0);
}

Zygote::~Zygote() {
  kill(process_, SIGKILL);
  while (waitpid(process_, nullptr, 0) < 0 && errno == EINTR) continue;
}

json Zygote::ask(const json& question, const Descriptors* descriptors) {
  if (!sendMark(channel_.descriptor(), descriptors))
    failFor("the process that forks hosts has ended");
  channel_.send({question, {}});
  auto answer = channel_.receive();
  if (answer) return std::move(answer->head);
  errno = EPIPE;
  failFor("the process that forks hosts has ended");
}

pid_t Zygote::launch(const json& job, const Descriptors& descriptors) {
  const auto host = ask({{"job", job}}, &descriptors).at("host").get<pid_t>();
  if (host > 0) return host;
  errno = -host;
  failFor("fork");
}

Zygote::End Zygote::reap(pid_t host) {
  const json end = ask({{"reap", host}}, nullptr);
  return {end.at("status").get<int>(), end.at("seconds").get<double>()};
}

}  // namespace sim
