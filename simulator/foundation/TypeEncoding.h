// Type encodings read at run time: what a method takes and gives, as the runtime has it on record.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace sim {

// One type. Qualifiers, frame offsets and the names of members and classes are dropped.
struct TypeEncoding {
  char kind = 'v';                    // the encoding's letter; '{' for structures, '^' for pointers
  std::string text = "v";             // the whole encoding
  std::vector<TypeEncoding> members;  // of a structure, in order

  bool isInteger() const;   // of any width, without BOOL
  bool isFloating() const;  // float, double
  bool isObject() const { return kind == '@' || kind == '#'; }
  std::size_t size() const;                        // bytes
  std::size_t alignment() const;                   // bytes
  std::size_t offsetOf(std::size_t member) const;  // bytes from a structure's start
  std::string scalars() const;  // the letters of the members, structures taken apart: "dddd"
};

struct Signature {
  TypeEncoding result;
  std::vector<TypeEncoding> arguments;  // of a method: without self and _cmd
};

// All throw std::invalid_argument, saying why, for what is no encoding or has arrays, unions or
// bit fields, which no method passes by value.
TypeEncoding parseType(std::string_view text);
Signature parseMethodTypes(std::string_view text);    // "v@:B": result, self, _cmd, arguments
Signature parseFunctionTypes(std::string_view text);  // "@i": result, arguments

// The first type, whatever follows it; nothing where none can be read.
std::optional<TypeEncoding> firstType(std::string_view text);
// The letter that decides how the first type is passed, qualifiers skipped; 0 for an empty
// encoding.
char typeLetter(std::string_view text);

// The encoding without what is only informational: offsets, qualifiers, names.
std::string normalizedTypes(std::string_view text);

}  // namespace sim
