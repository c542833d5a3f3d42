// What is wrong with a document of layers, and where.
#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>

namespace sim::caml {

class Error : public std::runtime_error {
 public:
  // The offset counts the bytes before the place.
  Error(std::size_t where, const std::string& problem)
      : std::runtime_error(problem), offset(where) {}
  std::size_t offset;
};

}  // namespace sim::caml
