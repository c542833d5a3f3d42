// Mistakes for tidy_test.py, in a header as in a source.
#pragma once

#include <string>
#include <vector>

inline std::size_t length(std::vector<std::string> words) {
  return words.size();
}
