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

constexpr std::size_t mostConnections = 400;
constexpr std::size_t requestBytes = std::size_t(2) * 1024 * 1024;  // headers and body
constexpr milliseconds idlePatience{60'000};
constexpr milliseconds breath{100};  // when there are no descriptors left

thread_local int theConnection = -1;
thread_local bool isAnswering = false;
thread_local bool lastAnswerWasError = false;

// A socket closed with something unread resets the connection, and the answer may be lost with
// it: what is still being sent goes unread, within limits.
void drain(int descriptor) {
  shutdown(descriptor, SHUT_WR);
  std::array<char, 16384> ignored;
  for (int rounds = 0; rounds < 256; ++rounds) {
    pollfd watched{descriptor, POLLIN, 0};
    if (poll(&watched, 1, 500) <= 0) break;
    if (recv(descriptor, ignored.data(), ignored.size(), 0) <= 0) break;
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

HttpServer::HttpServer() : wakeUp_(eventfd(0, EFD_CLOEXEC)) {
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
  std::unique_lock lock(mutex_);
  stopping_ = true;
  for (const int each : connections_) shutdown(each, SHUT_RDWR);
  changed_.wait(lock, [this] { return connections_.empty(); });
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

bool HttpServer::processRequest(httplib::Stream& stream, bool isLast) {
  const Answering answering(*this);
  lastAnswerWasError = false;
  bool closed = false;
  // The library's own ranges may reach beyond a file's end: see ByteRange.
  const auto withoutRanges = [](httplib::Request& request) { request.ranges.clear(); };
  const bool processed = process_request(stream, isLast, closed, withoutRanges);
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
    std::unique_lock lock(mutex_);
    if (descriptor >= 0)
      take(descriptor);
    else if (problem == EMFILE || problem == ENFILE)
      changed_.wait_for(lock, breath);
    else if (problem != EINTR && problem != ECONNABORTED && problem != EAGAIN)
      throw std::system_error(problem, std::generic_category(), "accept");
  }
}

void HttpServer::take(int descriptor) {
  if (connections_.size() >= mostConnections) {
    close(descriptor);
    return;
  }
  // Events are small and wanted now: the network must not wait for more to send with them.
  const int on = 1;
  setsockopt(descriptor, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
  connections_.insert(descriptor);
  std::thread([this, descriptor] { serve(descriptor); }).detach();
}

void HttpServer::serve(int descriptor) {
  theConnection = descriptor;
  SocketStream stream(descriptor);
  while (stream.waitForRequest(idlePatience)) {
    stream.allow(requestBytes);
    if (!processRequest(stream, false)) break;
  }
  endConnection(descriptor);
}

void HttpServer::endConnection(int descriptor) {
  drain(descriptor);
  const std::lock_guard lock(mutex_);
  // Forgotten before its number can be that of another connection.
  connections_.erase(descriptor);
  close(descriptor);
  changed_.notify_all();
}

}  // namespace sim
