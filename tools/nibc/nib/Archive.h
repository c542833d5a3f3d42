// A compiled layout as its file holds it: four tables that refer to each other by index.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace nib {

struct Integer {
  std::int64_t value;
  unsigned bytes;  // that the file spends on it: 1, 2, 4 or 8
};
using Data = std::string;  // any bytes
struct Nil {};
struct Reference {
  std::uint32_t object;
};

struct Value {
  std::uint32_t key;
  std::variant<Integer, bool, float, double, Data, Nil, Reference> content;
};

// Its values are those from firstValue on; two objects may share some.
struct Object {
  std::uint32_t cls;
  std::uint32_t firstValue;
  std::uint32_t valueCount;
};

struct Class {
  std::string name;
  std::vector<std::uint32_t> fallbacks;  // classes to try in turn where this one is absent
};

struct Archive {
  std::uint32_t format = 1;
  std::uint32_t coder = 9;      // what the compilers for phones write
  std::vector<Object> objects;  // the first is the root
  std::vector<std::string> keys;
  std::vector<Value> values;
  std::vector<Class> classes;
};

// What every file begins with, and the size of the tables' places after it.
inline constexpr std::string_view magic = "NIBArchive";
inline constexpr std::size_t headerSize = 50;
inline constexpr std::uint32_t newestFormat = 1;

// The byte in front of a value's content.
enum class Type : std::uint8_t {
  int8,
  int16,
  int32,
  int64,
  no,
  yes,
  float32,
  float64,
  data,
  nil,
  reference
};

}  // namespace nib
