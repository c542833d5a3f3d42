#include "simulator/uikit/application/NSURL.h"

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>

#include "simulator/foundation/Kind.h"
#include "simulator/foundation/Values.h"
#include "simulator/machine/NumberReader.h"
#include "simulator/standin/StandIn.h"

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

constexpr std::string_view hexDigits = "0123456789ABCDEF";

std::string escaped(std::string_view path) {
  std::string url;
  for (const char letter : path) {
    if (mayStandInUrl(letter) && letter != '%' && letter != '?' && letter != '#') {
      url += letter;
    } else {
      const auto byte = static_cast<unsigned char>(letter);
      url += {'%', hexDigits[byte >> 4], hexDigits[byte & 0xF]};
    }
  }
  return url;
}

// The byte after a percent sign; nothing when no two digits follow.
std::optional<char> escapedByte(std::string_view digits) {
  constexpr int hexadecimal = 16;
  const auto value = wholeNumber<unsigned>(digits, hexadecimal);
  return value && digits.size() == 2 ? std::optional(char(*value)) : std::nullopt;
}

std::string unescaped(std::string_view url) {
  std::string path;
  for (std::size_t i = 0; i < url.size(); ++i) {
    const auto byte = url[i] == '%' ? escapedByte(url.substr(i + 1, 2)) : std::nullopt;
    path += byte ? *byte : url[i];
    if (byte) i += 2;
  }
  return path;
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

Object NSURL::path() const {
  const std::string whole = text(absoluteString);
  std::string_view url = std::string_view(whole).substr(0, whole.find_first_of("?#"));
  if (const std::string_view scheme = schemeOf(url); !scheme.empty())
    url.remove_prefix(scheme.size() + 1);
  if (url.starts_with("//")) url.remove_prefix(std::min(url.find('/', 2), url.size()));
  return string(unescaped(url));
}

bool NSURL::isFileURL() const {
  const std::string url = text(absoluteString);
  return schemeOf(url) == "file";
}

Object NSURL::fileURLWithPath(id cls, Object path) {
  if (!path) return nullptr;
  return URLWithString(cls, string("file://" + escaped(text(path))));
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
      .factory<"fileURLWithPath:", &NSURL::fileURLWithPath>()
      .method<"initWithString:", &NSURL::initWithString>()
      .readonlyProperty<"absoluteString", &NSURL::absoluteString>()
      .method<"scheme", &NSURL::scheme>()
      .partial<"host", &NSURL::host>("with user and port, where they are given")
      .method<"path", &NSURL::path>()
      .method<"isFileURL", &NSURL::isFileURL>()
      .method<"isEqual:", &NSURL::isEqual>()
      .method<"hash", &NSURL::hash>()
      .method<"description", &NSURL::description>()
      .finish();
}

}  // namespace sim
