#include "simulator/preferences/PaneFolder.h"

#include <algorithm>
#include <set>
#include <utility>

#include "objc/Message.h"
#include "simulator/foundation/Values.h"
#include "simulator/machine/Phone.h"

namespace sim {
namespace {

using objc::Object;

std::vector<std::filesystem::path> propertyLists() {
  const std::filesystem::path folder = Phone::current().file(paneFolder);
  std::vector<std::filesystem::path> files;
  std::error_code missing;
  constexpr auto options = std::filesystem::directory_options::skip_permission_denied;
  // A link that leads nowhere, or to itself, is no file.
  std::error_code odd;
  for (const auto& each : std::filesystem::recursive_directory_iterator(folder, options, missing))
    if (each.is_regular_file(odd) && each.path().extension() == ".plist")
      files.push_back(each.path());
  std::sort(files.begin(), files.end());
  return files;
}

// Of what nobody would ever see: links that lead nowhere, and lists that nothing leads to.
std::vector<std::string> looseEnds(const PaneFolder& folder) {
  std::set<std::string> linked;
  std::vector<std::string> problems;
  for (const SpecifierList& list : folder.lists)
    for (std::size_t i = 0; i < list.items.size(); ++i) {
      const Specifier& item = list.items[i];
      if (item.cell != Cell::link) continue;
      linked.insert(item.label);
      if (folder.named(item.label) == nullptr)
        problems.push_back(list.file.string() + ": items[" + std::to_string(i) +
                           "].label: there is no list " + item.label + ".plist");
    }
  for (const SpecifierList& list : folder.lists)
    if (!list.entry && !linked.contains(list.file.stem().string()))
      problems.push_back(list.file.string() + ": there is no entry, and no link leads here");
  return problems;
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
  for (std::string& problem : looseEnds(folder)) folder.problems.push_back(std::move(problem));
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
