#include "simulator/preferences/PaneFolder.h"

#include <algorithm>

#include "objc/Message.h"
#include "simulator/foundation/Values.h"
#include "simulator/phone/Phone.h"

namespace sim {
namespace {

using objc::Object;

std::vector<std::filesystem::path> propertyLists() {
  const std::filesystem::path folder = Phone::current().file(paneFolder);
  std::vector<std::filesystem::path> files;
  std::error_code missing;
  for (const auto& each : std::filesystem::recursive_directory_iterator(folder, missing))
    if (each.is_regular_file() && each.path().extension() == ".plist") files.push_back(each.path());
  std::sort(files.begin(), files.end());
  return files;
}

}  // namespace

PaneFolder PaneFolder::read() {
  PaneFolder folder;
  for (const auto& file : propertyLists()) {
    try {
      folder.lists.push_back(readSpecifierList(file));
    } catch (const SpecifierError& error) {
      folder.problems.emplace_back(error.what());
    }
  }
  return folder;
}

const SpecifierList* PaneFolder::named(std::string_view name) const {
  const auto found = std::find_if(lists.begin(), lists.end(), [name](const SpecifierList& list) {
    return list.file.stem().string() == name;
  });
  return found == lists.end() ? nullptr : &*found;
}

std::string pathOnPhone(const std::filesystem::path& file) {
  return '/' + file.lexically_relative(Phone::current().root()).string();
}

PaneWords::PaneWords(const SpecifierList& list) {
  const std::string folder = pathOnPhone(list.file.parent_path());
  if (folder != paneFolder)
    bundle_ = objc::retain(
        objc::send<Object, "bundleWithPath:">(objc_getClass("NSBundle"), string(folder)));
}

std::string PaneWords::operator()(const std::string& key) const {
  if (!bundle_ || key.empty()) return key;
  const auto found = objc::send<Object, "localizedStringForKey:value:table:">(
      bundle_.get(), string(key), nullptr, nullptr);
  return found ? text(found) : key;
}

}  // namespace sim
