// Values of a script that outlive the host process they came from.
#pragma once

#include <nlohmann/json_fwd.hpp>
#include <optional>
#include <string>
#include <vector>

#include "simulator/foundation/invocation/Value.h"

namespace sim {

// What a plain value consists of, apart from any process.
struct SavedValue {
  enum class Kind {
    bytes,     // numbers, BOOL, structures of them, nil
    text,      // a C string
    selector,  // its name
    string,    // an NSString: UTF-16
    number,    // an NSNumber
  };
  Kind kind = Kind::bytes;
  std::string type;  // encoding of the value, or of what the NSNumber was made from
  std::vector<unsigned char> bytes;
};

// Nothing for what lives in the process: objects (strings that can change are such, too), classes,
// pointers and whatever contains one.
std::optional<SavedValue> saved(const Value& value);
// Objects are new ones. Throws std::invalid_argument for what saved() does not give.
Value restored(const SavedValue& from);

void to_json(nlohmann::json& json, const SavedValue& value);
void from_json(const nlohmann::json& json, SavedValue& value);

}  // namespace sim
