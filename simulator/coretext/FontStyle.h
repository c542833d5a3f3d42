// The look of a run of text, and how much room it takes.
#pragma once

#include <string_view>

namespace sim {

struct FontStyle {
  double pointSize = 17;
  double weight = 0;              // as UIFont's: 0 regular, 0.3 semibold, 0.4 bold
  bool monospacedDigits = false;  // all as wide as the widest
  bool operator==(const FontStyle&) const = default;

  // Of the platform's own font, in points; below the baseline is negative.
  double ascender() const { return pointSize * 0.9521484375; }
  double descender() const { return pointSize * -0.2412109375; }
  double lineHeight() const { return ascender() - descender(); }
  // Larger text is drawn with a face of its own, as on the platform.
  bool isDisplay() const { return pointSize >= 20; }
  // Between Latin, Greek and Cyrillic letters, in points: small text is set wider.
  double tracking() const;
  int cssWeight() const;  // 100 to 900
};

// Points, kerned and joined as the fonts say, in one line.
double textWidth(std::string_view utf8, const FontStyle& style);
double textWidth(std::u16string_view text, const FontStyle& style);

}  // namespace sim
