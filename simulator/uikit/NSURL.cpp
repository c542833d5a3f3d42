#include "simulator/uikit/NSURL.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "simulator/StandIn.h"
#include "simulator/foundation/Kind.h"
#include "simulator/foundation/Values.h"

namespace sim {
namespace {

using objc::Object;

// RFC 3986 has no blanks, no controls, nothing beyond ASCII and not these.
bool mayStandInUrl(char letter) {
  constexpr std::string_view forbidden = "\"<>\\^`{|}";
  return letter > ' ' && letter < 0x7F && forbidden.find(letter) == forbidden.npos;
}

std::string_view schemeOf(std::string_view url) {
  const std::size_t end = url.find_first_of(":/?#");
  return end != url.npos && url[end] == ':' ? url.substr(0, end) : std::string_view();
}

}  // namespace

Object NSURL::initWithString(Object given) {
  const std::string url = text(given);
  if (!given || !std::all_of(url.begin(), url.end(), mayStandInUrl)) return failInit(self());
  absoluteString = objc::adopt(objc::send<Object, "copy">(given));
  return Object(self());
}

Object NSURL::URLWithString(id cls, Object text) {
  return autorelease(objc::adopt(
      objc::send<Object, "initWithString:">(objc_alloc(reinterpret_cast<Class>(cls)), text)));
}

Object NSURL::scheme() const {
  const std::string url = text(absoluteString);
  const std::string_view found = schemeOf(url);
  return found.empty() ? Object() : string(found);
}

Object NSURL::host() const {
  const std::string url = text(absoluteString);
  const std::size_t start = url.find("//");
  if (start == url.npos || url.find_first_of("/?#") != start) return nullptr;
  const std::size_t end = std::min(url.find_first_of("/?#", start + 2), url.size());
  return string(url.substr(start + 2, end - start - 2));
}

bool NSURL::isEqual(Object other) const {
  const NSURL* url = stateOf<NSURL>(other);
  return url != nullptr && text(url->absoluteString) == text(absoluteString);
}

unsigned long NSURL::hash() const {
  return std::hash<std::string>()(text(absoluteString));
}

void NSURL::registerClass() {
  StandIn<NSURL>("Foundation", "NSURL", "NSObject")
      .factory<"URLWithString:", &NSURL::URLWithString>()
      .method<"initWithString:", &NSURL::initWithString>()
      .readonlyProperty<"absoluteString", &NSURL::absoluteString>()
      .method<"scheme", &NSURL::scheme>()
      .partial<"host", &NSURL::host>("with user and port, where they are given")
      .method<"isEqual:", &NSURL::isEqual>()
      .method<"hash", &NSURL::hash>()
      .method<"description", &NSURL::description>()
      .finish();
}

}  // namespace sim
