#include "simulator/serve/http/HeadRecorder.h"

namespace sim {
namespace {

constexpr std::size_t longestHead = std::size_t(64) * 1024;
constexpr std::string_view endOfHead = "\r\n\r\n";

}  // namespace

ssize_t HeadRecorder::read(char* place, size_t size) {
  const ssize_t count = stream_.read(place, size);
  // The library reads heads byte by byte: nothing of a body comes along with the last of them.
  if (count > 0 && !head_.ends_with(endOfHead) && head_.size() < longestHead)
    head_.append(place, std::size_t(count));
  return count;
}

}  // namespace sim
