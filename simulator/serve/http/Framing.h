// Where a request ends and the next one begins.
#pragma once

namespace httplib {
struct Request;
}

namespace sim {

// A request that says nothing of its body has none; the library would wait for one.
void completeFraming(httplib::Request& request);

// RequestError 400 for a body whose end is told in no way or in several, or that a request of this
// kind has not: the library would not read it, and take it for the next request.
void requireFraming(const httplib::Request& request);

}  // namespace sim
