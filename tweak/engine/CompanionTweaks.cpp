// Two other makers' extensions that change the same media module: what the package manager's
// records and their own preference files say of them.
#include "tweak/engine/Dozewell2Manager.h"

namespace {

bool exists(NSString path) {
  return NSFileManager::defaultManager().fileExistsAtPath(path);
}

// A value of any type: what has no boolean value is not true.
bool isTrue(objc::Object value) {
  return objc::respondsTo<"boolValue">(value) && objc::send<bool, "boolValue">(value);
}

bool isGrupiInstalled() {
  // One extension, four package identifiers: it has moved between repositories.
  const char* identifiers[] = {"com.zentrik.grupi", "com.morquel.grupi", "ru.tavisk.grupi",
                               "com.glimmerfen.grupi"};
  for (const char* identifier : identifiers) {
    const auto record =
        "/var/lib/dpkg/info/"_ns.stringByAppendingString(NSString::string(identifier))
            .stringByAppendingString(".list"_ns);
    if (exists("/var/jb"_ns.stringByAppendingPathComponent(record))) return true;
  }
  return false;
}

}  // namespace

// Installed without readable preferences counts as on.
bool Dozewell2Manager::sylphTweakEnabled() {
  if (!exists("/var/jb/var/lib/dpkg/info/ch.vorhal.sylph.list"_ns)) return false;
  const auto preferences = NSDictionary::dictionaryWithContentsOfFile(
      "/var/jb/var/mobile/Library/Preferences/ch.vorhal.sylph.plist"_ns);
  const auto enabled = preferences.objectForKey("enabled"_ns);
  return enabled ? isTrue(enabled) : true;
}

// Installed without readable preferences counts as off: the small controller is an option.
bool Dozewell2Manager::grupiTweakEnabled() {
  if (!isGrupiInstalled()) return false;
  const auto preferences = NSDictionary::dictionaryWithContentsOfFile(
      "/var/jb/var/mobile/Library/Preferences/com.zentrik.grupi.plist"_ns);
  const auto enabled = preferences.objectForKey("Enabled"_ns);
  if (enabled && !isTrue(enabled)) return false;
  return isTrue(preferences.objectForKey("SmallMusicController"_ns));
}
