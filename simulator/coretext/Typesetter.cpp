#include "simulator/coretext/Typesetter.h"

#include <unicode/ubrk.h>

#include <algorithm>

#include "simulator/coretext/Characters.h"
#include "simulator/foundation/Unicode.h"
#include "simulator/runtime/Fatal.h"

namespace sim {
namespace {

using Text = std::u16string_view;

// What sums of fractions may lose, so that text fits into its own width.
constexpr double tolerance = 1e-6;

Text withoutBlanksAtEnd(Text text) {
  while (text.ends_with(u' ')) text.remove_suffix(1);
  return text;
}

// Where a text may be broken, its end included, by the rules of no language in particular.
std::vector<std::size_t> breaksOf(Text text, UBreakIteratorType kind) {
  constexpr const char* noLanguage = "";
  UErrorCode problem = U_ZERO_ERROR;
  UBreakIterator* iterator =
      ubrk_open(kind, noLanguage, text.data(), std::int32_t(text.size()), &problem);
  if (U_FAILURE(problem)) sim::runtime::fatal("no line breaks: %s", u_errorName(problem));
  std::vector<std::size_t> breaks;
  for (auto at = ubrk_next(iterator); at != UBRK_DONE; at = ubrk_next(iterator))
    breaks.push_back(std::size_t(at));
  ubrk_close(iterator);
  return breaks;
}

// How many of so many places are such that the text before them fits; more is never narrower. Those
// far behind the end of a line are not asked.
template <class Fits>
std::size_t countFitting(std::size_t places, Fits fits) {
  std::size_t known = 0, beyond = 1;
  while (beyond <= places && fits(beyond - 1)) {
    known = beyond;
    beyond *= 2;
  }
  beyond = std::min(beyond, places + 1);
  while (known + 1 < beyond) {
    const std::size_t middle = (known + beyond) / 2;
    (fits(middle - 1) ? known : beyond) = middle;
  }
  return known;
}

class Typesetter {
 public:
  Typesetter(Text text, const FontStyle& style, double width, long lines)
      : text_(text), style_(style), width_(width + tolerance), lines_(lines) {}

  std::vector<TextLine> run() {
    while (!isDone_) {
      const bool isLast = lines_ > 0 && long(made_.size()) + 1 == lines_;
      isLast ? addLast() : addNext();
    }
    return std::move(made_);
  }

 private:
  void add(Text line) {
    line = withoutBlanksAtEnd(line);
    made_.push_back({unicode::toUtf8(line), textWidth(line, style_), takesTracking(line)});
  }

  bool fits(Text line) const { return textWidth(withoutBlanksAtEnd(line), style_) <= width_; }

  // What is left of the paragraph.
  Text paragraph() const {
    const Text rest = text_.substr(at_);
    return rest.substr(0, rest.find(u'\n'));
  }

  void addNext() {
    const Text line = paragraph();
    const std::size_t end = endOfLine(line);
    add(line.substr(0, end));
    at_ += end;
    if (end < line.size()) return;
    isDone_ = at_ == text_.size();
    ++at_;
  }

  // Between words, in the middle of one that is longer than a line.
  std::size_t endOfLine(Text line) {
    constexpr std::size_t shortText = 200;  // measured at once: most text is one line
    if (line.size() <= shortText && fits(line)) return line.size();
    if (breaks_.empty()) breaks_ = breaksOf(text_, UBRK_LINE);
    const auto first = std::upper_bound(breaks_.begin(), breaks_.end(), at_);
    const auto last = std::lower_bound(first, breaks_.end(), at_ + line.size());
    const auto between = std::size_t(last - first);
    const auto place = [&](std::size_t i) {
      return i < between ? first[long(i)] - at_ : line.size();
    };
    const std::size_t count =
        countFitting(between + 1, [&](std::size_t i) { return fits(line.substr(0, place(i))); });
    return count > 0 ? place(count - 1) : endInWord(line.substr(0, place(0)));
  }

  std::size_t endInWord(Text word) const {
    const auto places = breaksOf(word, UBRK_CHARACTER);
    const std::size_t count =
        countFitting(places.size(), [&](std::size_t i) { return fits(word.substr(0, places[i])); });
    return places[std::max<std::size_t>(count, 1) - 1];
  }

  void addLast() {
    const Text line = paragraph();
    isDone_ = true;
    if (at_ + line.size() == text_.size() && fits(line)) return add(line);
    const auto places = breaksOf(line, UBRK_CHARACTER);
    const auto shortened = [&](std::size_t end) {
      return std::u16string(withoutBlanksAtEnd(line.substr(0, end))) + u'…';
    };
    const std::size_t count =
        countFitting(places.size(), [&](std::size_t i) { return fits(shortened(places[i])); });
    add(shortened(count > 0 ? places[count - 1] : 0));
  }

  Text text_;
  const FontStyle& style_;
  double width_;
  long lines_;
  std::size_t at_ = 0;
  std::vector<std::size_t> breaks_;  // of the whole text, found when they are needed first
  bool isDone_ = false;
  std::vector<TextLine> made_;
};

}  // namespace

std::vector<TextLine> typeset(std::string_view utf8, const FontStyle& style, double width,
                              long lines) {
  if (utf8.empty()) return {};
  const std::u16string text = unicode::fromUtf8Lossy(utf8);
  return Typesetter(text, style, width, lines).run();
}

}  // namespace sim
