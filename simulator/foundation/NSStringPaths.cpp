#include "simulator/foundation/NSStringPaths.h"

#include "simulator/foundation/Values.h"

namespace sim {
namespace {

using objc::Object;

// Without the slashes at the end; the root stays.
std::u16string trimmed(std::u16string path) {
  while (path.size() > 1 && path.back() == u'/') path.pop_back();
  return path;
}

std::u16string path(Object self) {
  return trimmed(NSString::of(self).units);
}

// Where the last component begins.
std::size_t lastComponent(const std::u16string& path) {
  const auto slash = path.rfind(u'/');
  return slash == path.npos || path.size() == 1 ? 0 : slash + 1;
}

// Of the last component's dot that begins an extension; npos without one.
std::size_t extensionDot(const std::u16string& path) {
  const auto dot = path.rfind(u'.');
  const bool extension = dot != path.npos && dot > lastComponent(path) && dot + 1 < path.size();
  return extension ? dot : path.npos;
}

Object stringByAppendingPathComponent(Object self, Object component) {
  std::u16string joined = path(self);
  std::u16string added = unitsOf(component);
  added.erase(0, std::min(added.find_first_not_of(u'/'), added.size()));
  if (!joined.empty() && joined != u"/" && !added.empty()) joined += u'/';
  return stringOf(trimmed(joined + added));
}

Object stringByAppendingPathExtension(Object self, Object extension) {
  return stringOf(path(self) + u'.' + unitsOf(extension));
}

Object lastPathComponent(Object self) {
  const std::u16string whole = path(self);
  return stringOf(whole.substr(lastComponent(whole)));
}

Object pathExtension(Object self) {
  const std::u16string whole = path(self);
  const auto dot = extensionDot(whole);
  return stringOf(dot == whole.npos ? u"" : whole.substr(dot + 1));
}

Object stringByDeletingLastPathComponent(Object self) {
  const std::u16string whole = path(self);
  const std::size_t last = lastComponent(whole);
  if (last == 0) return stringOf(whole == u"/" ? u"/" : u"");
  return stringOf(trimmed(whole.substr(0, last)));
}

Object stringByDeletingPathExtension(Object self) {
  const std::u16string whole = path(self);
  return stringOf(whole.substr(0, extensionDot(whole)));
}

Object pathComponents(Object self) {
  const std::u16string whole = path(self);
  std::vector<Object> components;
  if (whole.starts_with(u'/')) components.push_back(stringOf(u"/"));
  for (std::size_t from = 0; from < whole.size();) {
    const auto slash = std::min(whole.find(u'/', from), whole.size());
    if (slash > from) components.push_back(stringOf(whole.substr(from, slash - from)));
    from = slash + 1;
  }
  return array(components);
}

bool isAbsolutePath(Object self) {
  return NSString::of(self).units.starts_with(u'/');
}

}  // namespace

void addPathMethods(StandIn<NSString>& standIn) {
  standIn.method<"stringByAppendingPathComponent:", &stringByAppendingPathComponent>()
      .method<"stringByAppendingPathExtension:", &stringByAppendingPathExtension>()
      .method<"lastPathComponent", &lastPathComponent>()
      .method<"pathExtension", &pathExtension>()
      .method<"stringByDeletingLastPathComponent", &stringByDeletingLastPathComponent>()
      .method<"stringByDeletingPathExtension", &stringByDeletingPathExtension>()
      .method<"pathComponents", &pathComponents>()
      .method<"isAbsolutePath", &isAbsolutePath>();
}

}  // namespace sim
