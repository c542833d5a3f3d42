#include "simulator/script/values/ExportedFunctions.h"

#include <stdexcept>

#include "simulator/foundation/TypeEncoding.h"

namespace sim {

ExportedFunctions::ExportedFunctions()
    : types_{
          {"allSublayersFromLayer", "@@"},
          {"getDndCAPackageView", "@d"},
          {"setDozewellButtonPositionAndVisibilityAccordingToCurrentLayout", "v@"},
          {"timeFormatted", "@i"},
      } {}

void ExportedFunctions::declare(const std::string& name, const std::string& types) {
  parseFunctionTypes(types);
  const auto [known, isNew] = types_.emplace(name, types);
  if (!isNew && normalizedTypes(known->second) != normalizedTypes(types))
    throw std::invalid_argument(name + " has the types \"" + known->second + '"');
}

const std::string* ExportedFunctions::types(std::string_view name) const {
  const auto found = types_.find(name);
  return found == types_.end() ? nullptr : &found->second;
}

}  // namespace sim
