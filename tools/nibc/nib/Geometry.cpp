#include "tools/nibc/nib/Geometry.h"

#include <cstring>

namespace nib {
namespace {

template <class Number>
std::optional<std::vector<double>> numbersOf(std::string_view bytes) {
  if (bytes.empty() || bytes.size() % sizeof(Number) != 0) return std::nullopt;
  std::vector<double> numbers;
  for (std::size_t at = 0; at < bytes.size(); at += sizeof(Number)) {
    Number number;
    std::memcpy(&number, bytes.data() + at, sizeof(Number));
    numbers.push_back(double(number));
  }
  return numbers;
}

}  // namespace

// The type of a value stands in front here, too; phones and the machines that this runs on are
// little-endian.
Data geometry(std::initializer_list<double> numbers) {
  Data data(1, char(Type::float64));
  for (const double each : numbers) {
    char bytes[sizeof(double)];
    std::memcpy(bytes, &each, sizeof(double));
    data.append(bytes, sizeof(double));
  }
  return data;
}

std::optional<std::vector<double>> geometryNumbers(std::string_view data) {
  if (data.empty()) return std::nullopt;
  const std::string_view numbers = data.substr(1);
  if (Type(data[0]) == Type::float64) return numbersOf<double>(numbers);
  if (Type(data[0]) == Type::float32) return numbersOf<float>(numbers);
  return std::nullopt;
}

}  // namespace nib
