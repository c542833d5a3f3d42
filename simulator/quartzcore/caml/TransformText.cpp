// Transforms: functions in the manner of style sheets.
#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <numbers>
#include <stdexcept>
#include <string>

#include "simulator/quartzcore/caml/Text.h"

namespace sim::caml {
namespace {

constexpr std::string_view blanks = " \t\r\n";

std::string_view trimmed(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
  return text.substr(0, text.find_last_not_of(blanks) + 1);
}

[[noreturn]] void fail(std::string_view found) {
  throw std::invalid_argument(
      "expected a transform of scale(), rotate(), translate() and matrix(), found " +
      quotedWord(found));
}

using Numbers = std::array<double, 16>;  // row by row

CATransform3D product(const CATransform3D& first, const CATransform3D& then) {
  const auto left = std::bit_cast<Numbers>(first);
  const auto right = std::bit_cast<Numbers>(then);
  Numbers made{};
  for (std::size_t place = 0; place < made.size(); ++place)
    for (std::size_t i = 0; i < 4; ++i)
      made[place] += left[place / 4 * 4 + i] * right[4 * i + place % 4];
  return std::bit_cast<CATransform3D>(made);
}

// Functions one after the other may multiply what each of them is allowed.
bool isModerate(const CATransform3D& transform) {
  constexpr double largest = 1e9;
  const auto numbers = std::bit_cast<Numbers>(transform);
  return std::all_of(numbers.begin(), numbers.end(),
                     [](double each) { return std::abs(each) <= largest; });
}

CATransform3D scale(const std::vector<double>& by) {
  CATransform3D made;
  made.m11 = by[0];
  made.m22 = by.size() > 1 ? by[1] : by[0];
  made.m33 = by.size() > 2 ? by[2] : 1;
  return made;
}

CATransform3D translation(const std::vector<double>& by) {
  CATransform3D made;
  made.m41 = by[0];
  made.m42 = by.size() > 1 ? by[1] : 0;
  made.m43 = by.size() > 2 ? by[2] : 0;
  return made;
}

// Radians without a unit. An axis may follow: only the one that comes out of the screen is known.
CATransform3D rotation(std::string_view arguments) {
  std::string_view angle = trimmed(arguments.substr(0, arguments.find(',')));
  const std::vector<double> axis =
      numbersOf(arguments.substr(std::min(arguments.find(','), arguments.size())));
  const bool outOfScreen =
      axis.empty() || (axis.size() == 3 && axis[0] == 0 && axis[1] == 0 && axis[2] != 0);
  if (!outOfScreen) throw std::invalid_argument("expected a rotation in the plane");
  const bool inDegrees = angle.ends_with("deg");
  if (inDegrees || angle.ends_with("rad")) angle.remove_suffix(3);
  double turn = realOf(angle) * (inDegrees ? std::numbers::pi / 180 : 1);
  if (!axis.empty() && axis[2] < 0) turn = -turn;
  return CATransform3D::ofAffine(
      {std::cos(turn), std::sin(turn), -std::sin(turn), std::cos(turn), 0, 0});
}

CATransform3D matrix(const std::vector<double>& values) {
  Numbers numbers;
  std::copy(values.begin(), values.end(), numbers.begin());
  return std::bit_cast<CATransform3D>(numbers);
}

CATransform3D function(std::string_view name, std::string_view arguments) {
  if (name == "rotate") return rotation(arguments);
  const std::vector<double> values = numbersOf(arguments);
  const bool upToThree = !values.empty() && values.size() <= 3;
  if (name == "scale" && upToThree) return scale(values);
  if (name == "translate" && upToThree) return translation(values);
  if (name == "matrix" && values.size() == 16) return matrix(values);
  fail(name);
}

}  // namespace

CATransform3D transformOf(std::string_view text) {
  CATransform3D made;
  std::string_view rest = trimmed(text);
  if (rest == "identity" || rest == "none") return made;
  if (rest.empty()) fail(text);
  while (!rest.empty()) {
    const std::size_t open = rest.find('(');
    const std::size_t close = rest.find(')');
    if (close == rest.npos || open > close) fail(rest);
    made = product(function(trimmed(rest.substr(0, open)), rest.substr(open + 1, close - open - 1)),
                   made);
    if (!isModerate(made)) fail(text);
    rest = trimmed(rest.substr(close + 1));
  }
  return made;
}

}  // namespace sim::caml
