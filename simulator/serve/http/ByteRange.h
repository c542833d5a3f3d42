// Which part of a file a request is about.
#pragma once

#include <cstddef>
#include <optional>
#include <string>

namespace httplib {
struct Request;
}

namespace sim {

struct ByteRange {
  std::size_t first = 0, length = 0;

  // As in Content-Range.
  std::string text(std::size_t size) const;
};

// Nothing means the whole file: also for several ranges at once and for what is no range at all,
// which a server may ignore, and when `tag` is not the one that the asker has the rest of.
// RequestError 416 when nothing of the file lies in the range.
std::optional<ByteRange> requestedRange(const httplib::Request& request, const std::string& tag,
                                        std::size_t size);

}  // namespace sim
