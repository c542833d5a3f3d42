#pragma once

#include <stdexcept>

namespace sim::macho {

// Why a file cannot be loaded, as the end of a sentence that began with its name.
class Error : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace sim::macho
