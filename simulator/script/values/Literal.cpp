#include "simulator/script/values/Literal.h"

#include <optional>
#include <stdexcept>

#include "simulator/machine/Journal.h"
#include "simulator/machine/NumberReader.h"
#include "simulator/script/names/NameChecks.h"
#include "simulator/script/values/ScriptBlock.h"
#include "simulator/script/values/Target.h"
#include "simulator/standin/KnownNames.h"

namespace sim {
namespace {

std::optional<Literal::Number> parsedNumber(std::string_view text) {
  if (auto whole = wholeNumber<long>(text))
    return Literal::Number{static_cast<long double>(*whole), true};
  if (auto whole = wholeNumber<unsigned long>(text))
    return Literal::Number{static_cast<long double>(*whole), true};
  if (auto real = wholeNumber<double>(text)) return Literal::Number{*real, false};
  return std::nullopt;
}

// "{{0, 0}, {390, 44}}": members separated by commas or blanks.
class StructureReader {
 public:
  StructureReader(std::string_view text, std::size_t column) : text_(text), column_(column) {}

  Literal read(int depth = 0) {
    if (depth > deepestNesting) throw ScriptError(column_ + at_, "expected fewer nested braces");
    const std::size_t start = at_++;
    Literal::Structure members;
    for (skipSeparators(); text_[at_] != '}'; skipSeparators())
      members.push_back(text_[at_] == '{' ? read(depth + 1) : number());
    ++at_;
    return {column_ + start, std::string(text_.substr(start, at_ - start)), std::move(members)};
  }

 private:
  static constexpr int deepestNesting = 16;

  // The word reader has balanced the braces, so the text ends with the last one.
  void skipSeparators() { at_ = text_.find_first_not_of(", \t", at_); }

  Literal number() {
    const std::size_t start = at_;
    at_ = text_.find_first_of(", \t{}", at_);
    const std::string written(text_.substr(start, at_ - start));
    const auto value = parsedNumber(written);
    if (!value) throw ScriptError(column_ + start, "expected a number, found " + written);
    return {column_ + start, written, *value};
  }

  std::string_view text_;
  std::size_t column_;
  std::size_t at_ = 0;
};

// block NAME ENCODING
Literal readBlock(std::size_t column, Arguments& arguments) {
  const std::string name = arguments.text("a name for the block");
  const Word types = arguments.word("an encoding such as \"v@\": result, arguments");
  try {
    const objc::Object made = scriptBlock(name, parseFunctionTypes(types.text));
    return {column, "block " + name, Value::ofObject(made)};
  } catch (const std::invalid_argument& error) {
    throw ScriptError(types.column, error.what());
  }
}

}  // namespace

Literal readLiteral(Arguments& arguments, std::string_view what) {
  const Word word = arguments.word(what);
  const std::string& text = word.text;
  if (word.quoted) return {word.column, sim::quoted(text), text};
  if (text == "nil") return {word.column, text, Literal::Nil{}};
  if (text == "YES" || text == "NO") return {word.column, text, text == "YES"};
  if (text.starts_with('{')) return StructureReader(text, word.column).read();
  if (const auto number = parsedNumber(text)) return {word.column, text, *number};
  if (text == "selector") {
    const Word name = arguments.word("a selector's name");
    requireNoTypo("the selector", name, selectorNames());
    return {word.column, "selector " + name.text, sel_registerName(name.text.c_str())};
  }
  if (text == "block") return readBlock(word.column, arguments);
  return {word.column, text, evaluateTarget(word)};
}

double readTolerance(Arguments& arguments) {
  if (!arguments.takeKeyword("within")) return 0;
  const double tolerance = arguments.number("a tolerance");
  if (tolerance < 0) arguments.failHere("expected a tolerance that is not negative");
  return tolerance;
}

void requireMatch(const Value& found, const Literal& expected, double tolerance,
                  const std::string& what) {
  if (matches(found, expected, tolerance)) return;
  const std::string within = tolerance > 0 ? " within " + notation(tolerance) : "";
  throw ScriptError(expected.column, what + ": expected " + expected.written + within + ", found " +
                                         notation(found));
}

}  // namespace sim
