#include "simulator/uikit/TextMeasure.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

namespace sim {
namespace {

// Parts of the font's size.
double advance(unsigned char lead) {
  constexpr std::string_view narrow = " iljtfrI.,:;'!|()[]";
  constexpr std::string_view wide = "mwMW@%";
  if ((lead & 0xC0) == 0x80) return 0;  // goes on with a character of several bytes
  if (lead >= 0xE0) return 1;           // scripts of the far east, pictures
  const char letter = char(lead);
  if (narrow.find(letter) != narrow.npos) return 0.28;
  if (wide.find(letter) != wide.npos) return 0.87;
  if (letter >= 'A' && letter <= 'Z') return 0.67;
  if (letter >= '0' && letter <= '9') return 0.62;
  return 0.55;
}

struct Lines {
  double width = 0;  // of the longest
  long count = 0;
};

void addLine(Lines& lines, double width) {
  lines.width = std::max(lines.width, width);
  ++lines.count;
}

// One paragraph.
void breakLines(Lines& lines, std::string_view paragraph, double pointSize, double width) {
  const double blank = textWidth(" ", pointSize);
  double line = 0;
  while (!paragraph.empty()) {
    const std::size_t end = std::min(paragraph.find(' '), paragraph.size());
    const double word = textWidth(paragraph.substr(0, end), pointSize);
    if (line > 0 && line + blank + word > width) addLine(lines, std::exchange(line, 0));
    line += (line > 0 ? blank : 0) + word;
    paragraph.remove_prefix(std::min(end + 1, paragraph.size()));
  }
  addLine(lines, line);
}

}  // namespace

double textWidth(std::string_view utf8, double pointSize) {
  double width = 0;
  for (const char byte : utf8) width += advance(static_cast<unsigned char>(byte)) * pointSize;
  return width;
}

CGSize textSize(std::string_view utf8, const TextStyle& style, double width) {
  if (utf8.empty()) return {};
  Lines lines;
  if (style.lines == 1) {
    addLine(lines, textWidth(utf8, style.pointSize));
  } else {
    for (std::size_t from = 0; from <= utf8.size();) {
      const std::size_t end = std::min(utf8.find('\n', from), utf8.size());
      breakLines(lines, utf8.substr(from, end - from), style.pointSize, width);
      from = end + 1;
    }
  }
  if (style.lines > 0) lines.count = std::min(lines.count, style.lines);
  return {std::ceil(std::min(lines.width, std::max(width, 0.0))),
          std::ceil(double(lines.count) * style.lineHeight)};
}

}  // namespace sim
