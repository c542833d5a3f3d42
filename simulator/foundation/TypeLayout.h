// What a type encoding says about memory.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace sim {

struct TypeLayout {
  std::size_t size = 0;  // bytes; 0: the encoding is not understood
  std::size_t alignment = 1;
  std::string scalars;  // the letters of its members, structures taken apart: "dddd"
};

// Of the first type in the encoding; "{CGRect={CGPoint=dd}{CGSize=dd}}" gives 32, 8, "dddd".
TypeLayout layoutOf(std::string_view encoding);

// The first type alone, without what follows it in a method's encoding.
std::string_view firstType(std::string_view encoding);

// The letter that decides how a type is passed, qualifiers skipped; 0 for an empty encoding.
char typeLetter(std::string_view encoding);

}  // namespace sim
