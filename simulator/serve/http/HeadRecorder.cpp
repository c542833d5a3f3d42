#include "simulator/serve/http/HeadRecorder.h"

namespace sim {
namespace {

constexpr std::size_t longestHead = std::size_t(32) * 1024;
constexpr std::size_t mostLines = 100;
constexpr std::string_view endOfHead = "\r\n\r\n";

}  // namespace

bool HeadRecorder::isOver() const {
  return head_.ends_with(endOfHead);
}

ssize_t HeadRecorder::read(char* place, size_t size) {
  if (!isOver() && (head_.size() >= longestHead || lines_ >= mostLines)) return -1;
  const ssize_t count = stream_.read(place, size);
  if (count <= 0 || isOver()) return count;
  // The library reads heads byte by byte: nothing of a body comes along with the last of them.
  head_.append(place, std::size_t(count));
  if (head_.ends_with('\n')) ++lines_;
  return count;
}

}  // namespace sim
