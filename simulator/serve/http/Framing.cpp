#include "simulator/serve/http/Framing.h"

#include <httplib.h>

#include <string>

#include "simulator/serve/RequestError.h"

namespace sim {

using httplib::Request;

namespace {

constexpr const char* lengthHeader = "Content-Length";
constexpr const char* codingHeader = "Transfer-Encoding";
constexpr std::size_t mostDigits = 12;

bool isNumber(const std::string& text) {
  return !text.empty() && text.size() <= mostDigits &&
         text.find_first_not_of("0123456789") == std::string::npos;
}

}  // namespace

void completeFraming(Request& request) {
  if (!request.has_header(lengthHeader) && !request.has_header(codingHeader))
    request.set_header(lengthHeader, "0");
}

void requireFraming(const Request& request) {
  const auto lengths = request.get_header_value_count(lengthHeader);
  const auto codings = request.get_header_value_count(codingHeader);
  if (lengths + codings != 1)
    throw RequestError(400, "expected one Content-Length, or Transfer-Encoding: chunked");
  if (lengths == 1 && !isNumber(request.get_header_value(lengthHeader)))
    throw RequestError(400, "expected Content-Length to be a number");
  if (codings == 1 && request.get_header_value(codingHeader) != "chunked")
    throw RequestError(400, "expected Transfer-Encoding: chunked");
  const bool isEmpty =
      lengths == 1 &&
      request.get_header_value(lengthHeader).find_first_not_of('0') == std::string::npos;
  if (request.method != "POST" && !isEmpty)
    throw RequestError(400, "expected no body with " + request.method);
}

}  // namespace sim
