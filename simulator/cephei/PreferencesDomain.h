// The values of one preferences domain, as the process that uses it sees them.
#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "objc/Ownership.h"

namespace sim {

class PreferencesDomain {
 public:
  // Reads the domain's file; one that is not readable is set aside.
  explicit PreferencesDomain(std::string name);

  const std::string& name() const { return name_; }

  // The stored value, else the registered default, else nil.
  objc::Object value(const std::string& key) const;
  // The keys whose values were asked for, or have a default, in alphabetical order.
  std::vector<std::string> requestedKeys() const {
    return {requestedKeys_.begin(), requestedKeys_.end()};
  }
  // nil removes the value. Not yet in the file.
  void set(const std::string& key, objc::Object value);
  void clear() { stored_.clear(); }
  // nil removes the default.
  void setDefault(const std::string& key, objc::Object value);

  // Writes the file as a whole. A failure is reported on stderr; the values in memory stay.
  void save() const;
  // Forgets what is in memory for what is in the file.
  void reload();

  // Autoreleased dictionaries.
  objc::Object stored() const { return asDictionary(stored_); }
  objc::Object defaults() const { return asDictionary(defaults_); }

 private:
  using Values = std::map<std::string, objc::Strong<objc::Object>>;
  static objc::Object asDictionary(const Values& values);
  static void assign(Values& values, const std::string& key, objc::Object value);

  std::string name_;
  Values stored_;
  Values defaults_;
  mutable std::set<std::string> requestedKeys_;
};

}  // namespace sim
