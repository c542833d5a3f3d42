#include "simulator/foundation/NSFileManager.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <vector>

#include "simulator/foundation/AtomicFile.h"
#include "simulator/foundation/Kind.h"
#include "simulator/foundation/NSData.h"
#include "simulator/foundation/Values.h"
#include "simulator/machine/Phone.h"
#include "simulator/standin/StandIn.h"

namespace sim {
namespace {

using objc::Object;
namespace fs = std::filesystem;

fs::path place(Object path) {
  return Phone::current().file(text(path));
}

void clear(Object* error) {
  if (error != nullptr) *error = nullptr;
}

Object defaultManager() {
  return onlyObject<NSFileManager>();
}

bool fileExists(Object, Object path) {
  std::error_code problem;
  return path && fs::exists(place(path), problem);
}

bool fileExistsIsDirectory(Object self, Object path, bool* isDirectory) {
  std::error_code problem;
  const bool exists = fileExists(self, path);
  if (isDirectory != nullptr) *isDirectory = exists && fs::is_directory(place(path), problem);
  return exists;
}

Object contentsAtPath(Object, Object path) {
  return objc::send<Object, "dataWithContentsOfFile:">(objc_getClass("NSData"), path);
}

bool createFile(Object, Object path, Object contents, Object) {
  const NSData* data = stateOf<NSData>(contents);
  std::string problem;
  return path && writeFileAtomically(place(path), data != nullptr ? data->content : "", &problem);
}

bool createDirectory(Object, Object path, bool intermediates, Object, Object* error) {
  clear(error);
  if (!path) return false;
  std::error_code problem;
  const fs::path folder = place(path);
  if (intermediates) {
    fs::create_directories(folder, problem);
    return !problem && fs::is_directory(folder, problem);
  }
  return fs::create_directory(folder, problem);
}

bool removeItem(Object, Object path, Object* error) {
  clear(error);
  std::error_code problem;
  // Nobody removes a phone's whole disk.
  return path && place(path) != Phone::current().file("/") &&
         fs::exists(fs::symlink_status(place(path), problem)) &&
         fs::remove_all(place(path), problem) > 0 && !problem;
}

bool moveItem(Object, Object from, Object to, Object* error) {
  clear(error);
  std::error_code problem;
  if (!from || !to || fs::exists(place(to), problem)) return false;
  fs::rename(place(from), place(to), problem);
  return !problem;
}

Object contentsOfDirectory(Object, Object path, Object* error) {
  clear(error);
  std::error_code problem;
  if (!path || !fs::is_directory(place(path), problem)) return nullptr;
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(place(path), problem))
    names.push_back(entry.path().filename().string());
  std::sort(names.begin(), names.end());  // the same order on every machine
  std::vector<Object> strings;
  for (const std::string& name : names) strings.push_back(string(name));
  return array(strings);
}

}  // namespace

void NSFileManager::registerClass() {
  constexpr const char* noError = "reports failure without an error object";
  StandIn<NSFileManager>("Foundation", "NSFileManager", "NSObject")
      .classMethod<"defaultManager", &defaultManager>()
      .method<"fileExistsAtPath:", &fileExists>()
      .method<"fileExistsAtPath:isDirectory:", &fileExistsIsDirectory>()
      .method<"contentsAtPath:", &contentsAtPath>()
      .partial<"createFileAtPath:contents:attributes:", &createFile>("ignores the attributes")
      .partial<"createDirectoryAtPath:withIntermediateDirectories:attributes:error:",
               &createDirectory>("ignores the attributes; reports failure without an error object")
      .partial<"removeItemAtPath:error:", &removeItem>(noError)
      .partial<"moveItemAtPath:toPath:error:", &moveItem>(noError)
      .partial<"contentsOfDirectoryAtPath:error:", &contentsOfDirectory>(noError)
      .finish();
}

}  // namespace sim
