#pragma once

#include <string>
#include <string_view>

#include "objc/Class.h"

namespace sim {

struct NSLocale : objc::Implementation<NSLocale> {
  std::string identifier;  // "pt_BR"

  static void registerClass();
};

// The parts of "zh-Hans_CN@calendar=gregorian"; empty when they are missing.
struct LocaleParts {
  std::string language;  // "zh"
  std::string script;    // "Hans"
  std::string region;    // "CN"
};
LocaleParts partsOf(std::string_view identifier);

}  // namespace sim
