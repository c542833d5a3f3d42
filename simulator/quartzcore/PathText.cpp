#include "simulator/quartzcore/PathText.h"

#include <algorithm>
#include <stdexcept>
#include <string>

#include "simulator/machine/NumberReader.h"

namespace sim {
namespace {

using Kind = PathElement::Kind;

// How far a curve's control points lie from its ends, as a part of the radius, so that four of
// them make a circle.
constexpr double roundness = 0.5523;

class PathReader {
 public:
  explicit PathReader(std::string_view text) : text_(text) {}

  std::vector<PathElement> read() {
    for (skipBlanks(); !text_.empty(); skipBlanks()) {
      const char letter = text_.front();
      text_.remove_prefix(1);
      add(letter);
    }
    return std::move(path_);
  }

 private:
  void skipBlanks() { text_.remove_prefix(std::min(text_.find_first_not_of(" \n"), text_.size())); }

  double number() {
    skipBlanks();
    const auto value = takeNumber<double>(text_);
    if (!value) throw std::logic_error("a path's text lacks a number");
    return *value;
  }
  CGPoint point() {
    const double x = number();
    return {x, number()};
  }

  void add(char letter) {
    switch (letter) {
      case 'M':
        return path_.push_back({Kind::move, {point()}});
      case 'L':
        return path_.push_back({Kind::line, {point()}});
      case 'C': {
        const CGPoint first = point(), second = point();
        return path_.push_back({Kind::cubic, {first, second, point()}});
      }
      case 'Z':
        return path_.push_back({Kind::close});
      case 'O': {
        const CGPoint centre = point();
        const double radius = number();
        return addBox({{centre.x - radius, centre.y - radius}, {2 * radius, 2 * radius}}, radius);
      }
      case 'R': {
        const CGPoint origin = point();
        const CGPoint size = point();
        return addBox({origin, {size.x, size.y}}, number());
      }
      default:
        throw std::logic_error(std::string("a path's text has the letter ") + letter);
    }
  }

  void curve(CGPoint from, CGPoint corner, CGPoint to) {
    const auto towards = [corner](CGPoint end) {
      return CGPoint{end.x + (corner.x - end.x) * roundness,
                     end.y + (corner.y - end.y) * roundness};
    };
    path_.push_back({Kind::line, {from}});
    path_.push_back({Kind::cubic, {towards(from), towards(to), to}});
  }

  void addBox(const CGRect& box, double radius) {
    const double left = box.origin.x, top = box.origin.y;
    const double right = left + box.size.width, bottom = top + box.size.height;
    path_.push_back({Kind::move, {{{left + radius, top}}}});
    curve({right - radius, top}, {right, top}, {right, top + radius});
    curve({right, bottom - radius}, {right, bottom}, {right - radius, bottom});
    curve({left + radius, bottom}, {left, bottom}, {left, bottom - radius});
    curve({left, top + radius}, {left, top}, {left + radius, top});
    path_.push_back({Kind::close});
  }

  std::string_view text_;  // what is still to be read
  std::vector<PathElement> path_;
};

}  // namespace

std::vector<PathElement> pathFromText(std::string_view text) {
  return PathReader(text).read();
}

}  // namespace sim
