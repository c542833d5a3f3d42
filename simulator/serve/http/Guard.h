// What every request must be and every answer says, whatever it is about.
#pragma once

#include <cstddef>

namespace httplib {
class Server;
}

namespace sim {

// Refuses foreign Host and Origin headers, and bodies that are too large or no JSON. A page of
// another site may send requests to this machine, but it cannot make them look like our own.
void guard(httplib::Server& server, int port);

// More is no request.
inline constexpr std::size_t largestBody = std::size_t(512) * 1024;

}  // namespace sim
