#include "simulator/serve/http/HttpServer.h"

#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdint>
#include <system_error>

#include "simulator/serve/http/SocketStream.h"

namespace sim {
namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

constexpr std::size_t mostConnections = 300;
constexpr std::size_t requestBytes = std::size_t(1) * 1024 * 1024;  // headers and body
constexpr milliseconds requestPatience{10'000};                     // until all of it is there
constexpr milliseconds strangersPatience{10'000};                   // until it begins
constexpr milliseconds idlePatience{60'000};                        // likewise, of who was let in
constexpr milliseconds drainPatience{1'000};
constexpr milliseconds roomPatience{100};

thread_local int theConnection = -1;
thread_local bool isAnswering = false;
thread_local bool lastAnswerWasError = false;

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

// As long as an answer is being worked out and sent.
class HttpServer::Answering {
 public:
  explicit Answering(HttpServer& server) : server_(server) {
    const std::lock_guard lock(server_.mutex_);
    ++server_.answering_;
    isAnswering = true;
  }
  ~Answering() { server_.leaveAnswering(); }
  Answering(const Answering&) = delete;
  Answering& operator=(const Answering&) = delete;

 private:
  HttpServer& server_;
};

HttpServer::HttpServer() : connections_(mostConnections), wakeUp_(eventfd(0, EFD_CLOEXEC)) {
  if (wakeUp_ < 0) throw std::system_error(errno, std::generic_category(), "eventfd");
  set_logger([](const httplib::Request&, const httplib::Response& response) {
    lastAnswerWasError = response.status >= 400;
  });
}

HttpServer::~HttpServer() {
  stopServing();
  close(wakeUp_);
}

void HttpServer::start(const Listener& listener) {
  // The library streams only as long as it believes that it listens.
  svr_sock_ = listener_ = listener.descriptor();
  acceptor_ = std::thread([this] { acceptConnections(); });
}

void HttpServer::stopAccepting() {
  if (!acceptor_.joinable()) return;
  const std::uint64_t one = 1;
  [[maybe_unused]] const auto written = write(wakeUp_, &one, sizeof one);
  acceptor_.join();
}

void HttpServer::stopServing() {
  stopAccepting();
  connections_.endAll();
}

bool HttpServer::waitUntilAnswered(milliseconds patience) {
  std::unique_lock lock(mutex_);
  return changed_.wait_for(lock, patience, [this] { return answering_ == 0; });
}

int HttpServer::connection() {
  return theConnection;
}

void HttpServer::leaveAnswering() {
  if (!isAnswering) return;
  isAnswering = false;
  const std::lock_guard lock(mutex_);
  --answering_;
  changed_.notify_all();
}

void HttpServer::trust() {
  connections_.trust(theConnection);
}

bool HttpServer::processRequest(httplib::Stream& stream, bool isLast) {
  const Answering answering(*this);
  lastAnswerWasError = false;
  bool closed = false;
  // The library's own ranges may reach beyond a file's end: see ByteRange.
  const auto prepare = [this](httplib::Request& request) {
    request.ranges.clear();
    if (prepare_) prepare_(request);
  };
  const bool processed = process_request(stream, isLast, closed, prepare);
  // After an error the rest of the request may be unread: it must not be taken for the next one.
  return processed && !closed && !lastAnswerWasError;
}

bool HttpServer::waitForConnection() const {
  std::array<pollfd, 2> watched{{{listener_, POLLIN, 0}, {wakeUp_, POLLIN, 0}}};
  while (poll(watched.data(), watched.size(), -1) < 0 && errno == EINTR) continue;
  return watched[1].revents == 0;
}

void HttpServer::acceptConnections() {
  while (waitForConnection()) {
    // Closed by exec(): pages notice at once that the phone's process begins anew.
    const int descriptor = accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC);
    const int problem = errno;
    if (descriptor >= 0)
      take(descriptor);
    else if (problem == EMFILE || problem == ENFILE)
      connections_.makeRoom(roomPatience);
    else if (problem != EINTR && problem != ECONNABORTED && problem != EAGAIN)
      throw std::system_error(problem, std::generic_category(), "accept");
  }
}

void HttpServer::take(int descriptor) {
  if (!connections_.add(descriptor)) {
    close(descriptor);
    return;
  }
  // Events are small and wanted now: the network must not wait for more to send with them.
  const int on = 1;
  setsockopt(descriptor, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
  try {
    std::thread([this, descriptor] { serve(descriptor); }).detach();
  } catch (const std::system_error&) {
    connections_.remove(descriptor);  // no more threads just now: whoever it was may try again
  }
}

void HttpServer::serve(int descriptor) {
  theConnection = descriptor;
  SocketStream stream(descriptor);
  const auto patience = [this, descriptor] {
    return connections_.isTrusted(descriptor) ? idlePatience : strangersPatience;
  };
  while (stream.waitForRequest(patience())) {
    connections_.beginRequest(descriptor);
    stream.allow(requestBytes, requestPatience);
    if (!processRequest(stream, false)) break;
  }
  drain(descriptor);
  connections_.remove(descriptor);
}

}  // namespace sim
