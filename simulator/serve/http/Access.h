// Who is let in: whoever shows the secret of this phone.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace httplib {
struct Request;
struct Response;
}  // namespace httplib

namespace sim {

// That many random hexadecimal digits, each of four bits, from the system.
std::string randomDigits(int count);

// A browser sends the cookie of 127.0.0.1 to every port there, whoever listens. So the page lies
// below a first part of the path that only this phone's pages know, and the cookie is for that part
// alone. It is taken away before anything else looks at a path.
inline constexpr int placeDigits = 16;

class Access {
 public:
  // `token` is the secret: letters, digits and -._~.
  Access(std::string token, std::string place)
      : token_(std::move(token)), place_(std::move(place)) {}

  // "/0123456789abcdef/?token=…": what the page is opened with.
  std::string entrance() const;

  // Whether the request shows the secret: as a cookie, as `Authorization: Bearer TOKEN`, or in the
  // address of the page itself.
  bool admits(const httplib::Request& request) const;

  // The secret is in the page's address: gives it as a cookie, and leads to the page's place first
  // when the address lacks that. Otherwise does nothing. False: there is nothing more to answer.
  bool welcome(const httplib::Request& request, httplib::Response& response) const;

 private:
  bool isToken(std::string_view text) const;
  bool hasCookie(const httplib::Request& request) const;
  bool isInAddress(const httplib::Request& request) const;

  std::string token_, place_;
};

// The place in what was asked for, "/0123456789abcdef"; empty when there is none.
std::string_view placeOf(std::string_view target);

// Takes the place out of the path.
void leavePlace(httplib::Request& request);

}  // namespace sim
