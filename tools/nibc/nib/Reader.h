#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>

#include "tools/nibc/nib/Archive.h"

namespace nib {

// Bytes that are no compiled layout. what() begins with "offset N: ".
class FormatError : public std::runtime_error {
 public:
  FormatError(std::size_t where, const std::string& problem)
      : std::runtime_error("offset " + std::to_string(where) + ": " + problem), offset(where) {}
  std::size_t offset;  // from the first byte of the file
};

// Every index in the result is within its table. Accepts exactly what write() can give back byte
// for byte: tables in their usual order and without gaps, numbers in their shortest form, as all
// known compilers write them. Throws FormatError.
Archive read(std::string_view bytes);

}  // namespace nib
