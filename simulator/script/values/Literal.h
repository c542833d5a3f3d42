// Values as scripts write them, and what they become as arguments and in expectations.
#pragma once

#include <cstddef>
#include <string>
#include <variant>
#include <vector>

#include "simulator/foundation/invocation/Value.h"
#include "simulator/script/Command.h"

namespace sim {

// 3  0.5  YES  nil  "text"  {{x, y}, {w, h}}  selector NAME  block NAME ENCODING  $name.key
// Class.key
struct Literal {
  struct Nil {};
  struct Number {
    long double value;
    bool isInteger;  // as written
  };
  using Structure = std::vector<Literal>;

  std::size_t column = 0;
  std::string written;  // for messages
  std::variant<Nil, bool, Number, std::string, Structure, SEL, Value> content;
};

// Reads one value. Throws ScriptError, like all readers.
Literal readLiteral(Arguments& arguments, std::string_view what);

// As an argument of that type. Throws ScriptError when it does not fit.
Value converted(const Literal& literal, const TypeEncoding& type);

// Whether an expectation holds; numbers (also inside structures) may differ by the tolerance.
// A string also equals what an object that is no string has for a description.
bool matches(const Value& found, const Literal& expected, double tolerance);

// "within 0.5" when the next words are that, else 0.
double readTolerance(Arguments& arguments);

// Throws ScriptError at the literal's column unless it matches.
void requireMatch(const Value& found, const Literal& expected, double tolerance,
                  const std::string& what);

}  // namespace sim
