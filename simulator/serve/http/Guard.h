// What every request must be and every answer says, whatever it is about.
#pragma once

#include <cstddef>

namespace sim {

class Access;
class HttpServer;

// Refuses foreign Host and Origin headers, requests without the secret, and bodies that are too
// large or no JSON. A page of another site may send requests to this machine, but it cannot make
// them look like our own; other users of the machine can, but do not know the secret. `access` must
// outlive the server.
void guard(HttpServer& server, int port, const Access& access);

// More is no request: there is room for the longest line of a script.
inline constexpr std::size_t largestBody = std::size_t(5) << 19;

}  // namespace sim
