#include "simulator/coretext/Typesetter.h"

#include <algorithm>

#include "simulator/coretext/Characters.h"

namespace sim {
namespace {

using Characters = std::u32string_view;

constexpr char32_t ellipsis = U'…';
// What sums of fractions may lose, so that text fits into its own width.
constexpr double tolerance = 1e-6;

class Typesetter {
 public:
  Typesetter(Characters text, const FontStyle& style, double width, long lines)
      : rest_(text), style_(style), width_(width + tolerance), lines_(lines) {}

  std::vector<TextLine> run() {
    while (!isDone_) {
      const bool isLast = lines_ > 0 && long(made_.size()) + 1 == lines_;
      isLast ? addLast() : addNext();
    }
    return std::move(made_);
  }

 private:
  void add(Characters line) {
    while (line.ends_with(U' ')) line.remove_suffix(1);
    const auto tracked = [](char32_t each) { return isTracked(each) || takesNoRoom(each); };
    made_.push_back(
        {utf8Of(line), textWidth(line, style_), std::all_of(line.begin(), line.end(), tracked)});
  }

  // How many characters fit into the width.
  std::size_t fitting(Characters line, double width) const {
    std::size_t count = 0;
    double taken = 0;
    for (; count < line.size(); ++count) {
      taken += advance(line[count], style_);
      if (taken > width && line[count] != U' ') break;
    }
    return count;
  }

  // Where a line of at most so many characters ends: after a blank, a hyphen or a character of a
  // script without blanks; in the middle of a word that is longer than a line.
  static std::size_t breakBefore(Characters line, std::size_t limit) {
    for (std::size_t at = limit; at > 0; --at) {
      const char32_t before = line[at - 1];
      if (before == U' ' || before == U'-' || before == U'\u2010') return at;
      const bool free = breaksAnywhere(before) || (at < line.size() && breaksAnywhere(line[at]));
      if (free && !(at < line.size() && mayNotBegin(line[at]))) return at;
    }
    return limit > 0 ? limit : 1;
  }

  Characters paragraph() const { return rest_.substr(0, rest_.find(U'\n')); }

  void takeParagraph(std::size_t length) {
    isDone_ = length == rest_.size();
    rest_.remove_prefix(isDone_ ? length : length + 1);
  }

  void addNext() {
    const Characters line = paragraph();
    const std::size_t count = fitting(line, width_);
    if (count == line.size()) {
      add(line);
      return takeParagraph(line.size());
    }
    const std::size_t end = breakBefore(line, count);
    add(line.substr(0, end));
    end == line.size() ? takeParagraph(end) : rest_.remove_prefix(end);
  }

  void addLast() {
    const Characters line = paragraph();
    isDone_ = true;
    if (line.size() == rest_.size() && fitting(line, width_) == line.size()) return add(line);
    std::u32string kept(line.substr(0, fitting(line, width_ - advance(ellipsis, style_))));
    while (kept.ends_with(U' ')) kept.pop_back();
    add(kept += ellipsis);
  }

  Characters rest_;
  const FontStyle& style_;
  double width_;
  long lines_;
  bool isDone_ = false;
  std::vector<TextLine> made_;
};

}  // namespace

std::vector<TextLine> typeset(std::string_view utf8, const FontStyle& style, double width,
                              long lines) {
  if (utf8.empty()) return {};
  const std::u32string characters = charactersOf(utf8);
  return Typesetter(characters, style, width, lines).run();
}

}  // namespace sim
