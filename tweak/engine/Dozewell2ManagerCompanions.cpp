// Two other makers' extensions that change the same media module: what the package manager's
// records and their own preference files say of them.
#include "tweak/engine/Dozewell2ManagerImplementation.h"

namespace {

bool exists(NSString path) {
  return NSFileManager::defaultManager().fileExistsAtPath(path);
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
bool Dozewell2ManagerImplementation::sylphTweakEnabled() {
  if (!exists("/var/jb/var/lib/dpkg/info/ch.vorhal.sylph.list"_ns)) return false;
  const auto preferences = NSDictionary::dictionaryWithContentsOfFile(
      "/var/jb/var/mobile/Library/Preferences/ch.vorhal.sylph.plist"_ns);
  const auto enabled = preferences.objectForKey("enabled"_ns);
  return enabled ? NSNumber::boolValueOf(enabled) : true;
}

// Installed without readable preferences counts as off: the small controller is an option.
bool Dozewell2ManagerImplementation::grupiTweakEnabled() {
  if (!isGrupiInstalled()) return false;
  const auto preferences = NSDictionary::dictionaryWithContentsOfFile(
      "/var/jb/var/mobile/Library/Preferences/com.zentrik.grupi.plist"_ns);
  const auto enabled = preferences.objectForKey("Enabled"_ns);
  if (enabled && !NSNumber::boolValueOf(enabled)) return false;
  return NSNumber::boolValueOf(preferences.objectForKey("SmallMusicController"_ns));
}
