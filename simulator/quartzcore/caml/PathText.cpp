// Paths: numbers first, then what to do with them.
#include <stdexcept>
#include <string>

#include "simulator/quartzcore/caml/Text.h"
#include "simulator/quartzcore/caml/Words.h"

namespace sim::caml {
namespace {

using Kind = PathElement::Kind;

struct Operator {
  Kind kind;
  std::size_t points;
};

Operator operatorOf(std::string_view word) {
  if (word == "m") return {Kind::move, 1};
  if (word == "l") return {Kind::line, 1};
  if (word == "c") return {Kind::cubic, 3};
  if (word == "h") return {Kind::close, 0};
  throw std::invalid_argument("expected a number or one of m, l, c and h in the path, found " +
                              quotedWord(word));
}

class PathBuilder {
 public:
  void add(std::string_view word) {
    if (const auto value = number(word))
      numbers_.push_back(*value);
    else
      perform(operatorOf(word), word);
  }

  std::vector<PathElement> finish() {
    if (!numbers_.empty())
      throw std::invalid_argument("expected an operator at the end of the path");
    return std::move(elements_);
  }

 private:
  void perform(Operator what, std::string_view word) {
    if (numbers_.size() != 2 * what.points)
      throw std::invalid_argument("expected " + std::to_string(2 * what.points) +
                                  " numbers before " + quotedWord(word) + " in the path, found " +
                                  std::to_string(numbers_.size()));
    if (elements_.empty() && what.kind != Kind::move)
      throw std::invalid_argument("expected the path to begin with a move, found " +
                                  quotedWord(word));
    PathElement element{what.kind};
    for (std::size_t i = 0; i < what.points; ++i)
      element.points[i] = {numbers_[2 * i], numbers_[2 * i + 1]};
    elements_.push_back(element);
    numbers_.clear();
  }

  std::vector<double> numbers_;
  std::vector<PathElement> elements_;
};

}  // namespace

std::vector<PathElement> pathOf(std::string_view text) {
  PathBuilder path;
  Words words(text);
  for (std::string_view word = words.next(); !word.empty(); word = words.next()) path.add(word);
  return path.finish();
}

}  // namespace sim::caml
