#include "simulator/phone/script/ExportedFunctions.h"

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
  types_.insert_or_assign(name, types);
}

const std::string* ExportedFunctions::types(std::string_view name) const {
  const auto found = types_.find(name);
  return found == types_.end() ? nullptr : &found->second;
}

}  // namespace sim
