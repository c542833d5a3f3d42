#include "simulator/serve/http/PeerUser.h"

#include <linux/inet_diag.h>
#include <linux/netlink.h>
#include <linux/sock_diag.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cstring>

namespace sim {
namespace {

struct Question {
  nlmsghdr header;
  inet_diag_req_v2 request;
};

// The other end's socket is looked for by what it is connected with.
std::optional<Question> questionAbout(int descriptor) {
  sockaddr_in own{}, peer{};
  socklen_t ownSize = sizeof own, peerSize = sizeof peer;
  if (getsockname(descriptor, reinterpret_cast<sockaddr*>(&own), &ownSize) != 0 ||
      getpeername(descriptor, reinterpret_cast<sockaddr*>(&peer), &peerSize) != 0 ||
      peer.sin_family != AF_INET)
    return std::nullopt;
  Question question{};
  question.header.nlmsg_len = sizeof question;
  question.header.nlmsg_type = SOCK_DIAG_BY_FAMILY;
  question.header.nlmsg_flags = NLM_F_REQUEST;
  inet_diag_req_v2& request = question.request;
  request.sdiag_family = AF_INET;
  request.sdiag_protocol = IPPROTO_TCP;
  request.idiag_states = ~0U;
  request.id.idiag_sport = peer.sin_port;
  request.id.idiag_dport = own.sin_port;
  request.id.idiag_src[0] = peer.sin_addr.s_addr;
  request.id.idiag_dst[0] = own.sin_addr.s_addr;
  request.id.idiag_cookie[0] = request.id.idiag_cookie[1] = INET_DIAG_NOCOOKIE;
  return question;
}

std::optional<uid_t> userIn(const char* bytes, ssize_t count) {
  nlmsghdr header{};
  inet_diag_msg message{};
  if (count < ssize_t(NLMSG_LENGTH(sizeof message))) return std::nullopt;
  std::memcpy(&header, bytes, sizeof header);
  std::memcpy(&message, bytes + NLMSG_HDRLEN, sizeof message);
  if (header.nlmsg_type != SOCK_DIAG_BY_FAMILY) return std::nullopt;
  // A socket that nobody holds any more belongs to no user, though the message has a number.
  if (message.idiag_inode == 0) return std::nullopt;
  return message.idiag_uid;
}

}  // namespace

std::optional<uid_t> peerUser(int descriptor) {
  const auto question = questionAbout(descriptor);
  if (!question) return std::nullopt;
  const int kernel = socket(AF_NETLINK, SOCK_DGRAM | SOCK_CLOEXEC, NETLINK_SOCK_DIAG);
  if (kernel < 0) return std::nullopt;
  std::array<char, 4096> answer;
  ssize_t count = send(kernel, &*question, sizeof *question, 0);
  if (count > 0) count = recv(kernel, answer.data(), answer.size(), MSG_DONTWAIT);
  close(kernel);
  return userIn(answer.data(), count);
}

}  // namespace sim
