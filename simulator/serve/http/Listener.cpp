#include "simulator/serve/http/Listener.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <string>
#include <system_error>
#include <utility>

namespace sim {
namespace {

constexpr int usualPort = 8420;
constexpr int portsTried = 100;
constexpr int backlog = 512;

[[noreturn]] void fail(const std::string& what) {
  throw std::system_error(errno, std::generic_category(), what);
}

sockaddr_in loopback(int port) {
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_port = htons(std::uint16_t(port));
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  return address;
}

// -1 when the port is in use.
int tryToListen(int port) {
  const int descriptor = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  if (descriptor < 0) fail("socket");
  // A port whose last connections are still winding down is free; one where others listen is not.
  const int on = 1;
  setsockopt(descriptor, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
  const sockaddr_in address = loopback(port);
  const auto* plain = reinterpret_cast<const sockaddr*>(&address);
  if (bind(descriptor, plain, sizeof address) == 0 && listen(descriptor, backlog) == 0)
    return descriptor;
  const int problem = errno;
  close(descriptor);
  errno = problem;
  if (problem != EADDRINUSE && problem != EACCES) fail("port " + std::to_string(port));
  return -1;
}

}  // namespace

Listener Listener::open(std::optional<int> port) {
  const int first = port.value_or(usualPort);
  const int count = port ? 1 : portsTried;
  for (int each = first; each < first + count; ++each) {
    if (const int descriptor = tryToListen(each); descriptor >= 0) return Listener(descriptor);
  }
  const std::string last = count == 1 ? "" : " to " + std::to_string(first + count - 1);
  fail("port " + std::to_string(first) + last);
}

Listener::Listener(Listener&& other) noexcept : descriptor_(std::exchange(other.descriptor_, -1)) {}

Listener::~Listener() {
  if (descriptor_ >= 0) close(descriptor_);
}

int Listener::port() const {
  sockaddr_in address{};
  socklen_t size = sizeof address;
  if (getsockname(descriptor_, reinterpret_cast<sockaddr*>(&address), &size) != 0)
    fail("getsockname");
  return ntohs(address.sin_port);
}

}  // namespace sim
