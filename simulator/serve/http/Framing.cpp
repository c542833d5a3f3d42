#include "simulator/serve/http/Framing.h"

#include <httplib.h>

#include <algorithm>
#include <cctype>

#include "simulator/serve/RequestError.h"

namespace sim {
namespace {

constexpr const char* lengthHeader = "Content-Length";
constexpr const char* codingHeader = "Transfer-Encoding";
constexpr const char* packingHeader = "Content-Encoding";
constexpr std::string_view lineEnd = "\r\n";
constexpr std::string_view blanks = " \t";
constexpr std::size_t mostDigits = 12;

[[noreturn]] void refuse() {
  throw RequestError(400, "expected an HTTP request");
}

bool isControl(char letter) {
  return (static_cast<unsigned char>(letter) < ' ' && letter != '\t') || letter == '\x7f';
}

// Of the names that headers may have.
bool isNameLetter(char letter) {
  return std::isalnum(static_cast<unsigned char>(letter)) != 0 ||
         std::string_view("!#$%&'*+-.^_`|~").find(letter) != std::string_view::npos;
}

// Without its end, which must be there, and be the only one.
std::string_view takeLine(std::string_view& head) {
  const auto end = head.find(lineEnd);
  if (end == std::string_view::npos) refuse();
  const std::string_view line = head.substr(0, end);
  if (std::any_of(line.begin(), line.end(), isControl)) refuse();
  head.remove_prefix(end + lineEnd.size());
  return line;
}

bool isNamed(std::string_view name, std::string_view header) {
  return std::equal(name.begin(), name.end(), header.begin(), header.end(), [](char one, char two) {
    return std::tolower(static_cast<unsigned char>(one)) ==
           std::tolower(static_cast<unsigned char>(two));
  });
}

std::string_view trimmed(std::string_view text) {
  const auto first = text.find_first_not_of(blanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

bool isNumber(std::string_view text) {
  return !text.empty() && text.size() <= mostDigits &&
         text.find_first_not_of("0123456789") == std::string_view::npos;
}

}  // namespace

void completeFraming(httplib::Request& request) {
  if (!request.has_header(lengthHeader)) request.set_header(lengthHeader, "0");
}

void requireFraming(const std::string& method, std::string_view head) {
  takeLine(head);  // what is asked for
  bool hasLength = false;
  for (std::string_view line = takeLine(head); !line.empty(); line = takeLine(head)) {
    const std::string_view name = line.substr(0, line.find(':'));
    if (name.empty() || name.size() == line.size() ||
        !std::all_of(name.begin(), name.end(), isNameLetter))
      refuse();
    // What a body becomes when it is unpacked has no limit.
    if (isNamed(name, packingHeader)) throw RequestError(415, "expected no Content-Encoding");
    if (isNamed(name, codingHeader)) throw RequestError(411, "expected a Content-Length");
    if (!isNamed(name, lengthHeader)) continue;
    const std::string_view length = trimmed(line.substr(name.size() + 1));
    if (hasLength || !isNumber(length))
      throw RequestError(400, "expected one Content-Length, a number");
    if (method != "POST" && length.find_first_not_of('0') != std::string_view::npos)
      throw RequestError(400, "expected no body with " + method);
    hasLength = true;
  }
}

}  // namespace sim
