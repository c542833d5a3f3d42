#include "tests/serve/RawConnection.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <stdexcept>
#include <utility>

namespace sim {

RawConnection::RawConnection(const ServedProgram& program, Reads how)
    : socket_(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
  const int small = 4096;
  if (how == Reads::slowly) setsockopt(socket_, SOL_SOCKET, SO_RCVBUF, &small, sizeof small);
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_port = htons(std::uint16_t(program.port()));
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  if (connect(socket_, reinterpret_cast<sockaddr*>(&address), sizeof address) != 0)
    throw std::runtime_error("it cannot be connected to");
}

RawConnection::~RawConnection() {
  if (socket_ >= 0) close(socket_);
}

RawConnection::RawConnection(RawConnection&& other) noexcept
    : socket_(std::exchange(other.socket_, -1)) {}

bool RawConnection::send(const std::string& bytes) const {
  return ::send(socket_, bytes.data(), bytes.size(), MSG_NOSIGNAL) == ssize_t(bytes.size());
}

std::string RawConnection::readAll(std::chrono::milliseconds patience) const {
  const auto end = std::chrono::steady_clock::now() + patience;
  std::string all;
  char piece[4096];
  for (;;) {
    const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(
        end - std::chrono::steady_clock::now());
    pollfd watched{socket_, POLLIN, 0};
    if (left.count() <= 0 || poll(&watched, 1, int(left.count())) <= 0) return all;
    const ssize_t count = recv(socket_, piece, sizeof piece, 0);
    if (count <= 0) return all;
    all.append(piece, std::size_t(count));
  }
}

bool RawConnection::reads(const std::string& text, int times) const {
  std::string tail;
  char piece[4096];
  while (times > 0) {
    const ssize_t count = recv(socket_, piece, sizeof piece, 0);
    if (count <= 0) return false;
    tail.append(piece, std::size_t(count));
    for (auto at = tail.find(text); at != std::string::npos; at = tail.find(text)) {
      tail.erase(0, at + text.size());
      --times;
    }
    if (tail.size() > text.size()) tail.erase(0, tail.size() - text.size());
  }
  return true;
}

bool RawConnection::isOver() const {
  char piece[4096];
  ssize_t count = 0;
  do count = recv(socket_, piece, sizeof piece, MSG_DONTWAIT);
  while (count > 0);
  return count == 0 || (errno != EAGAIN && errno != EWOULDBLOCK);
}

}  // namespace sim
