#include "simulator/serve/http/HttpServer.h"

#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <iostream>
#include <system_error>

#include "simulator/serve/http/PeerUser.h"
#include "simulator/serve/http/SocketStream.h"

namespace sim {
namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

constexpr std::size_t mostConnections = 300;
constexpr std::size_t fewestConnections = 8;
constexpr std::size_t otherDescriptors = 64;  // files, pipes and what the answers need
constexpr std::size_t requestBytes = std::size_t(1) * 1024 * 1024;  // headers and body
constexpr milliseconds requestPatience{10'000};                     // until all of it is there
constexpr milliseconds strangersPatience{10'000};                   // until it begins
constexpr milliseconds idlePatience{60'000};                        // likewise, of who was let in
constexpr milliseconds drainPatience{1'000};
constexpr milliseconds roomPatience{100};
constexpr int threadTries = 20;
constexpr const char* loopback = "127.0.0.1";
constexpr int usualPort = 8420;
constexpr int portsTried = 100;
constexpr int backlog = 512;

thread_local int theConnection = -1;
thread_local bool lastAnswerWasError = false;
thread_local const RequestStream* theStream = nullptr;
thread_local httplib::Ranges theRanges;

// Twice as many as stay may be there, and one that watches has two descriptors.
std::size_t connectionsFor(std::size_t descriptors) {
  const std::size_t left = descriptors - std::min(descriptors, otherDescriptors);
  return std::clamp(left / 3, fewestConnections, mostConnections);
}

// As many descriptors as this process may have.
std::size_t raisedLimit() {
  rlimit limit{};
  getrlimit(RLIMIT_NOFILE, &limit);
  limit.rlim_cur = std::min<rlim_t>(limit.rlim_max, 4096);
  setrlimit(RLIMIT_NOFILE, &limit);
  getrlimit(RLIMIT_NOFILE, &limit);
  return limit.rlim_cur;
}

// A socket closed with something unread resets the connection, and the answer may be lost with
// it: what is still being sent goes unread, for a while.
void drain(int descriptor) {
  shutdown(descriptor, SHUT_WR);
  const auto end = steady_clock::now() + drainPatience;
  std::array<char, 16384> ignored;
  for (;;) {
    const auto left = std::chrono::ceil<milliseconds>(end - steady_clock::now());
    pollfd watched{descriptor, POLLIN, 0};
    if (left.count() <= 0 || poll(&watched, 1, int(left.count())) <= 0) return;
    if (recv(descriptor, ignored.data(), ignored.size(), 0) <= 0) return;
  }
}

}  // namespace

HttpServer::HttpServer()
    : connections_(connectionsFor(raisedLimit())), wakeUp_(eventfd(0, EFD_CLOEXEC)) {
  if (wakeUp_ < 0) throw std::system_error(errno, std::generic_category(), "eventfd");
  set_address_family(AF_INET);
  // A port whose last connections are still winding down is free; one where others listen is not.
  set_socket_options([](socket_t socket) {
    const int on = 1;
    setsockopt(socket, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
  });
  set_logger([](const httplib::Request&, const httplib::Response& response) {
    lastAnswerWasError = response.status >= 400;
  });
}

HttpServer::~HttpServer() {
  stopServing();
  close(wakeUp_);
  if (svr_sock_ >= 0) close(svr_sock_);
}

// -1 when it is in use.
int HttpServer::tryToBind(int port) {
  if (port == 0) return bind_to_any_port(loopback);
  if (bind_to_port(loopback, port)) return port;
  if (errno == EADDRINUSE || errno == EACCES) return -1;
  throw std::system_error(errno, std::generic_category(), "port " + std::to_string(port));
}

int HttpServer::bind(std::optional<int> port) {
  const int first = port.value_or(usualPort);
  const int last = port ? first : first + portsTried - 1;
  for (int each = first; each <= last; ++each) {
    const int bound = tryToBind(each);
    if (bound < 0) continue;
    ::listen(svr_sock_, backlog);  // the library's own is short
    return bound;
  }
  const std::string range = first == last ? "" : " to " + std::to_string(last);
  throw std::system_error(errno, std::generic_category(), "port " + std::to_string(first) + range);
}

void HttpServer::start() {
  acceptor_ = std::thread([this] { acceptConnections(); });
}

void HttpServer::stopServing() {
  if (acceptor_.joinable()) {
    const std::uint64_t one = 1;
    [[maybe_unused]] const auto written = write(wakeUp_, &one, sizeof one);
    acceptor_.join();
  }
  connections_.endAll();
}

int HttpServer::connection() {
  return theConnection;
}

const std::string& HttpServer::head() {
  return theStream->head();
}

const httplib::Ranges& HttpServer::ranges() {
  return theRanges;
}

void HttpServer::trust() {
  connections_.trust(theConnection);
}

bool HttpServer::processRequest(RequestStream& stream, bool isLast) {
  lastAnswerWasError = false;
  bool closed = false;
  theRanges.clear();
  // The library would send ranges that reach beyond a file's end, and of what is no file: see
  // Files.
  const auto prepare = [this](httplib::Request& request) {
    theRanges = std::exchange(request.ranges, {});
    if (prepare_) prepare_(request);
  };
  stream.beginRequest();
  theStream = &stream;
  const bool processed = process_request(stream, isLast, closed, prepare);
  theStream = nullptr;
  // After an error the rest of the request may be unread: it must not be taken for the next one.
  return processed && !closed && !lastAnswerWasError;
}

bool HttpServer::waitForConnection() const {
  std::array<pollfd, 2> watched{{{svr_sock_, POLLIN, 0}, {wakeUp_, POLLIN, 0}}};
  while (poll(watched.data(), watched.size(), -1) < 0 && errno == EINTR) continue;
  return watched[1].revents == 0;
}

void HttpServer::acceptConnections() {
  while (waitForConnection()) {
    const int descriptor = accept4(svr_sock_, nullptr, nullptr, SOCK_CLOEXEC);
    const int problem = errno;
    if (descriptor >= 0)
      take(descriptor);
    else if (problem == EMFILE || problem == ENFILE || problem == ENOBUFS || problem == ENOMEM)
      connections_.makeRoom(roomPatience);
    // What else goes wrong is that one connection's own trouble.
  }
}

void HttpServer::take(int descriptor) {
  if (!connections_.add(descriptor, peerUser(descriptor))) {
    close(descriptor);
    return;
  }
  // Events are small and wanted now: the network must not wait for more to send with them.
  const int on = 1;
  setsockopt(descriptor, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
  startToServe(descriptor);
}

// Where there are no more threads others have to go for it, too.
void HttpServer::startToServe(int descriptor) {
  for (int tries = 0; tries < threadTries; ++tries) {
    try {
      std::thread([this, descriptor] { serve(descriptor); }).detach();
      return;
    } catch (const std::system_error&) {
      connections_.makeRoom(roomPatience);
    }
  }
  connections_.remove(descriptor);
}

void HttpServer::serve(int descriptor) {
  theConnection = descriptor;
  SocketStream stream(descriptor);
  const auto patience = [this, descriptor] {
    return connections_.isTrusted(descriptor) ? idlePatience : strangersPatience;
  };
  try {
    while (stream.waitForRequest(patience())) {
      stream.allow(requestBytes, requestPatience);
      if (!processRequest(stream, false)) break;
    }
  } catch (const std::exception& error) {
    std::cerr << "dozewell-simulator: a connection is closed: " << error.what() << '\n';
  }
  drain(descriptor);
  connections_.remove(descriptor);
}

}  // namespace sim
