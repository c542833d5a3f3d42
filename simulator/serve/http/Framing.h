// Where a request ends and the next one begins.
#pragma once

#include <string>
#include <string_view>

namespace httplib {
struct Request;
}

namespace sim {

// A request that says nothing of its body has none; the library would wait for one.
void completeFraming(httplib::Request& request);

// What a request's head, as it was sent, says of its body: nothing, or one Content-Length with
// POST. RequestError 400 for anything else, and for heads that not everybody reads in the same way;
// 411 for a body in chunks, 415 for a packed one. The library would not read such a body, or only a
// part of it, and take the rest for the next request.
void requireFraming(const std::string& method, std::string_view head);

}  // namespace sim
