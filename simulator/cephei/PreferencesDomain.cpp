#include "simulator/cephei/PreferencesDomain.h"

#include <cstdio>
#include <utility>
#include <vector>

#include "objc/Message.h"
#include "simulator/cephei/PreferencesFile.h"
#include "simulator/foundation/PropertyList.h"
#include "simulator/foundation/Values.h"
#include "simulator/machine/FileContent.h"

namespace sim {
namespace {

// nil, with the file set aside, when its content is no dictionary.
objc::Object readDictionary(const std::filesystem::path& file) {
  if (!isThere(file)) return nullptr;
  std::string error;
  const objc::Object content = readPropertyList(file, &error);
  if (isKindOf(content, "NSDictionary")) return content;
  quarantine(file, content ? file.string() + ": its root is no dictionary" : error);
  return nullptr;
}

}  // namespace

PreferencesDomain::PreferencesDomain(std::string name) : name_(std::move(name)) {
  reload();
}

objc::Object PreferencesDomain::value(const std::string& key) const {
  requestedKeys_.insert(key);
  for (const Values* values : {&stored_, &defaults_})
    if (const auto found = values->find(key); found != values->end()) return found->second.get();
  return nullptr;
}

void PreferencesDomain::set(const std::string& key, objc::Object value) {
  assign(stored_, key, value);
}

void PreferencesDomain::setDefault(const std::string& key, objc::Object value) {
  requestedKeys_.insert(key);
  assign(defaults_, key, value);
}

void PreferencesDomain::assign(Values& values, const std::string& key, objc::Object value) {
  if (value)
    values.insert_or_assign(key, objc::retain(value));
  else
    values.erase(key);
}

void PreferencesDomain::save() const {
  const auto file = preferencesFile(name_);
  std::string error;
  if (!writePropertyList(stored(), file, &error))
    std::fprintf(stderr, "%s: not written: %s\n", file.c_str(), error.c_str());
}

void PreferencesDomain::reload() {
  stored_.clear();
  const objc::Object content = readDictionary(preferencesFile(name_));
  const auto keys = objc::send<objc::Object, "allKeys">(content);
  const auto count = objc::send<unsigned long, "count">(keys);
  for (unsigned long index = 0; index < count; ++index) {
    const auto key = objc::send<objc::Object, "objectAtIndex:">(keys, index);
    set(text(key), objc::send<objc::Object, "objectForKey:">(content, key));
  }
}

objc::Object PreferencesDomain::asDictionary(const Values& values) {
  std::vector<std::pair<objc::Object, objc::Object>> pairs;
  for (const auto& [key, value] : values) pairs.emplace_back(string(key), value.get());
  return dictionary(pairs);
}

}  // namespace sim
