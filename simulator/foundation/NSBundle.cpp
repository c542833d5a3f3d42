#include "simulator/foundation/NSBundle.h"

#include <filesystem>

#include "simulator/foundation/Kind.h"
#include "simulator/foundation/NSDictionary.h"
#include "simulator/foundation/PropertyList.h"
#include "simulator/foundation/Values.h"
#include "simulator/machine/Phone.h"
#include "simulator/standin/StandIn.h"

namespace sim {
namespace {

using objc::Object;
using objc::Strong;

constexpr const char* hostPath = "/System/Library/CoreServices/SpringBoard.app";

std::string withoutSlashes(std::string path) {
  while (path.size() > 1 && path.back() == '/') path.pop_back();
  return path;
}

bool isFolder(const std::string& path) {
  std::error_code problem;  // such as a link to itself
  return std::filesystem::is_directory(Phone::current().file(path), problem);
}

Strong<Object> makeAt(const std::string& path) {
  Strong<Object> made = NSBundle::make();
  NSBundle::of(made.get()).path = path;
  return made;
}

struct Bundles {
  Object main = makeAt(hostPath).detach();  // owned, and never given up
  // One object per folder, as long as anybody keeps it.
  std::map<std::string, objc::Weak<Object>> others;
};

Object bundleWithPath(Object path) {
  const std::string where = withoutSlashes(text(path));
  if (where.empty() || !isFolder(where)) return nullptr;
  objc::Weak<Object>& known = Phone::current().state<Bundles>().others[where];
  Strong<Object> bundle = known.load();
  if (!bundle) {
    bundle = makeAt(where);
    known = objc::weak(bundle.get());
  }
  return autorelease(std::move(bundle));
}

Object mainBundle() {
  return Phone::current().state<Bundles>().main;
}

Object bundleForClass(Class) {
  return mainBundle();
}

Object initWithPath(Object self, Object path) {
  NSBundle::of(self).path = withoutSlashes(text(path));
  return path && isFolder(NSBundle::of(self).path) ? self : failInit(self.get());
}

Object bundlePath(Object self) {
  return string(NSBundle::of(self).path);
}

Object objectForInfoDictionaryKey(Object self, Object key) {
  const Object info = NSBundle::of(self).infoDictionary();
  return objc::send<Object, "objectForKey:">(info, key);
}

Object bundleIdentifier(Object self) {
  return objectForInfoDictionaryKey(self, string("CFBundleIdentifier"));
}

Object localizations(Object self) {
  std::vector<Object> names;
  for (const std::string& name : NSBundle::of(self).files().localizations())
    names.push_back(string(name));
  return array(names);
}

Object preferredLocalizations(Object self) {
  const std::string name = NSBundle::of(self).files().preferredLocalization();
  return name.empty() ? array({}) : array({string(name)});
}

}  // namespace

Object NSBundle::infoDictionary() {
  if (!info) {
    std::string problem;
    const Object read = readPropertyList(Phone::current().file(path + "/Info.plist"), &problem);
    info = objc::retain(isA<NSDictionary>(read) ? read : dictionary({}));
  }
  return info;
}

const BundleFiles& NSBundle::files() {
  const Phone& phone = Phone::current();
  if (!content || content->locale() != phone.setup.locale) {
    const Object region =
        NSDictionary::of(infoDictionary()).value(string("CFBundleDevelopmentRegion"));
    content.emplace(phone.file(path), phone.setup.locale,
                    isKindOf(region, "NSString") ? text(region) : "");
  }
  return *content;
}

Object NSBundle::pathForResource(Object name, Object type) {
  if (!name) return nullptr;
  const auto found = files().find(text(name), text(type));
  return found ? string(path + '/' + found->string()) : nullptr;
}

Object NSBundle::URLForResource(Object name, Object extension) {
  const Object found = pathForResource(name, extension);
  return found ? objc::send<Object, "fileURLWithPath:">(objc_getClass("NSURL"), found) : nullptr;
}

const StringsTable& NSBundle::table(const std::string& name) {
  const auto known = tables.find(name);
  if (known != tables.end()) return known->second;
  const auto found = files().find(name, "strings");
  auto read =
      found ? readStrings(Phone::current().file(path + '/' + found->string())) : std::nullopt;
  if (found && !read) {
    Phone::current().journal.record(
        "log " + sim::quoted("Unable to load .strings file: " + path + " / " + name));
  }
  return tables.emplace(name, read ? std::move(*read) : StringsTable()).first->second;
}

Object NSBundle::localizedString(Object key, Object otherwise, Object tableName) {
  if (!key) return otherwise ? otherwise : string("");
  const std::string name = text(tableName);
  const StringsTable& strings = table(name.empty() ? "Localizable" : name);
  const auto found = strings.find(text(key));
  if (found != strings.end()) return string(found->second);
  return text(otherwise).empty() ? key : otherwise;
}

void NSBundle::registerClass() {
  StandIn<NSBundle>("Foundation", "NSBundle", "NSObject")
      .classMethod<"bundleWithPath:", &bundleWithPath>()
      .classMethod<"mainBundle", &mainBundle>()
      .partialClassMethod<"bundleForClass:", &bundleForClass>("the main bundle for every class")
      .method<"initWithPath:", &initWithPath>()
      .method<"bundlePath", &bundlePath>()
      .method<"resourcePath", &bundlePath>()
      .method<"bundleIdentifier", &bundleIdentifier>()
      .method<"infoDictionary", &NSBundle::infoDictionary>()
      .partial<"objectForInfoDictionaryKey:", &objectForInfoDictionaryKey>("never localised")
      .partial<"localizations", &localizations>("those with a folder of their own")
      .partial<"preferredLocalizations", &preferredLocalizations>("the first of them")
      .partial<"pathForResource:ofType:", &NSBundle::pathForResource>(
          "only the chosen language, Base and the development region are searched")
      .partial<"URLForResource:withExtension:", &NSBundle::URLForResource>(
          "only the chosen language, Base and the development region are searched")
      .partial<"localizedStringForKey:value:table:", &NSBundle::localizedString>(
          "no plural rules (.stringsdict)")
      .finish();
}

}  // namespace sim
