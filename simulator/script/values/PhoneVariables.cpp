#include "simulator/script/values/PhoneVariables.h"

#include <map>
#include <utility>

#include "simulator/machine/Phone.h"

namespace sim {
namespace {

struct PhoneVariables {
  std::map<std::string, std::function<objc::Object()>> all;
};

auto& variables() {
  return Phone::current().state<PhoneVariables>().all;
}

}  // namespace

void addPhoneVariable(const std::string& name, std::function<objc::Object()> current) {
  variables()[name] = std::move(current);
}

bool isPhoneVariable(const std::string& name) {
  return variables().contains(name);
}

objc::Object phoneVariable(const std::string& name) {
  const auto found = variables().find(name);
  return found == variables().end() ? objc::Object() : found->second();
}

}  // namespace sim
