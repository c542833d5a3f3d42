#include "simulator/serve/http/RequestStream.h"

namespace sim {
namespace {

constexpr std::size_t longestHead = std::size_t(32) * 1024;
constexpr std::size_t mostLines = 100;
constexpr std::string_view endOfHead = "\r\n\r\n";

}  // namespace

void RequestStream::beginRequest() {
  head_.clear();
  lines_ = 0;
}

bool RequestStream::isOver() const {
  return head_.ends_with(endOfHead);
}

ssize_t RequestStream::read(char* place, size_t size) {
  if (!isOver() && (head_.size() >= longestHead || lines_ >= mostLines)) return -1;
  const ssize_t count = receive(place, size);
  if (count <= 0 || isOver()) return count;
  // The library reads heads byte by byte: nothing of a body comes along with the last of them.
  head_.append(place, std::size_t(count));
  if (head_.ends_with('\n')) ++lines_;
  return count;
}

}  // namespace sim
