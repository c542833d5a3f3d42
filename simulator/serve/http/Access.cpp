#include "simulator/serve/http/Access.h"

#include <httplib.h>
#include <sys/random.h>

#include <algorithm>
#include <cerrno>
#include <system_error>

namespace sim {

using httplib::Request;
using httplib::Response;

namespace {

constexpr std::string_view hexadecimal = "0123456789abcdef";
constexpr std::string_view cookieName = "dozewell";
constexpr const char* tokenParameter = "token";

// Takes equally long for all texts of a length: how much of one is right shows nowhere.
bool areSame(std::string_view one, std::string_view other) {
  if (one.size() != other.size()) return false;
  volatile unsigned char different = 0;
  for (std::size_t at = 0; at < one.size(); ++at)
    different = static_cast<unsigned char>(different | (one[at] ^ other[at]));
  return different == 0;
}

// "a=b; c=d": takes the first of them.
std::string_view takeCookie(std::string_view& cookies) {
  std::string_view cookie = cookies.substr(0, cookies.find(';'));
  cookies.remove_prefix(std::min(cookie.size() + 1, cookies.size()));
  cookie.remove_prefix(std::min(cookie.find_first_not_of(' '), cookie.size()));
  return cookie;
}

}  // namespace

std::string randomDigits(int count) {
  std::string text(std::size_t(count), '\0');
  if (getrandom(text.data(), text.size(), 0) != ssize_t(text.size()))
    throw std::system_error(errno, std::generic_category(), "getrandom");
  for (char& each : text) each = hexadecimal[static_cast<unsigned char>(each) % hexadecimal.size()];
  return text;
}

std::string_view placeOf(std::string_view target) {
  const std::string_view place = target.substr(0, placeDigits + 1);
  const bool isPlace = place.size() == placeDigits + 1 && target.substr(place.size(), 1) == "/" &&
                       place[0] == '/' &&
                       place.find_first_not_of(hexadecimal, 1) == std::string_view::npos;
  return isPlace ? place : std::string_view();
}

void leavePlace(Request& request) {
  request.path.erase(0, placeOf(request.path).size());
}

std::string Access::entrance() const {
  return '/' + place_ + "/?" + tokenParameter + '=' + token_;
}

bool Access::isToken(std::string_view text) const {
  return areSame(text, token_);
}

bool Access::hasCookie(const Request& request) const {
  bool found = false;
  for (std::size_t index = 0; index < request.get_header_value_count("Cookie"); ++index) {
    const std::string header = request.get_header_value("Cookie", index);
    for (std::string_view cookies = header; !cookies.empty();) {
      const std::string_view cookie = takeCookie(cookies);
      const bool isOurs =
          cookie.starts_with(cookieName) && cookie.substr(cookieName.size(), 1) == "=";
      found = (isOurs && isToken(cookie.substr(cookieName.size() + 1))) || found;
    }
  }
  return found;
}

bool Access::isInAddress(const Request& request) const {
  return request.method == "GET" && request.path == "/" &&
         isToken(request.get_param_value(tokenParameter));
}

bool Access::admits(const Request& request) const {
  constexpr std::string_view scheme = "Bearer ";
  const std::string authorization = request.get_header_value("Authorization");
  const bool bears = authorization.starts_with(scheme) &&
                     isToken(std::string_view(authorization).substr(scheme.size()));
  return bears || hasCookie(request) || isInAddress(request);
}

bool Access::welcome(const Request& request, Response& response) const {
  if (!isInAddress(request)) return true;
  const std::string_view place = placeOf(request.target);
  response.headers.erase("Cache-Control");
  response.set_header("Cache-Control", "no-store");
  if (place.empty()) {
    response.set_redirect('/' + place_ + request.target, 303);
    return false;
  }
  response.set_header("Set-Cookie", std::string(cookieName) + '=' + token_ + "; Path=" +
                                        std::string(place) + "/; HttpOnly; SameSite=Strict");
  return true;
}

}  // namespace sim
