#include "simulator/serve/http/ByteRange.h"

#include <httplib.h>

#include <algorithm>
#include <string_view>

#include "simulator/machine/NumberReader.h"
#include "simulator/serve/RequestError.h"

namespace sim {
namespace {

// Nothing without a digit; more than there can be counts as the most.
std::optional<std::size_t> takeNumber(std::string_view& text) {
  const auto end = std::min(text.find_first_not_of("0123456789"), text.size());
  const std::string_view digits = text.substr(0, end);
  text.remove_prefix(end);
  if (digits.empty()) return std::nullopt;
  return wholeNumber<std::size_t>(digits).value_or(std::string::npos);
}

struct Wish {
  std::optional<std::size_t> first, last;
};

// "bytes=5-9", "bytes=5-", "bytes=-5"
std::optional<Wish> wishFrom(std::string_view text) {
  constexpr std::string_view unit = "bytes=";
  if (!text.starts_with(unit)) return std::nullopt;
  text.remove_prefix(unit.size());
  Wish wish;
  wish.first = takeNumber(text);
  if (!text.starts_with('-')) return std::nullopt;
  text.remove_prefix(1);
  wish.last = takeNumber(text);
  if (!text.empty() || (!wish.first && !wish.last)) return std::nullopt;
  return wish;
}

}  // namespace

std::string ByteRange::text(std::size_t size) const {
  return "bytes " + std::to_string(first) + '-' + std::to_string(first + length - 1) + '/' +
         std::to_string(size);
}

std::optional<ByteRange> requestedRange(const httplib::Request& request, const std::string& tag,
                                        std::size_t size) {
  if (request.has_header("If-Range") && request.get_header_value("If-Range") != tag)
    return std::nullopt;
  const auto wish = wishFrom(request.get_header_value("Range"));
  if (!wish) return std::nullopt;
  // Without a first one it is the last so many.
  const std::size_t first = wish->first ? *wish->first : size - std::min(size, *wish->last);
  const std::size_t last = wish->first && wish->last ? *wish->last : size;
  if (first >= size || last < first)
    throw RequestError(416, "expected a range of the file's " + std::to_string(size) + " bytes");
  return ByteRange{first, std::min(last, size - 1) - first + 1};
}

}  // namespace sim
