// The variables of the process that follow a domain's values.
#pragma once

#include <map>
#include <string>
#include <variant>

#include "simulator/cephei/PreferencesDomain.h"

namespace sim {

class Bindings {
 public:
  // An object slot holds a strong reference.
  using Address = std::variant<bool*, long*, unsigned long*, double*, id*>;

  // One address per key: binding a key again forgets the address before.
  void bind(const std::string& key, Address address) { addresses_[key] = address; }
  // Writes every bound variable.
  void update(const PreferencesDomain& domain) const;

 private:
  std::map<std::string, Address> addresses_;
};

}  // namespace sim
