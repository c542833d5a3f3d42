#include "simulator/coretext/FontStyle.h"

#include <cmath>

#include "simulator/coretext/Characters.h"
#include "simulator/coretext/Shaping.h"
#include "simulator/foundation/Unicode.h"

namespace sim {
namespace {

struct CssWeight {
  double upTo;  // UIFont's weight
  int css;
};
// Between UIFont's named weights.
constexpr CssWeight cssWeights[] = {{-0.7, 100}, {-0.5, 200}, {-0.2, 300}, {0.11, 400},
                                    {0.26, 500}, {0.35, 600}, {0.48, 700}, {0.59, 800}};

}  // namespace

// The curve that the face's designer publishes for its text sizes.
double FontStyle::tracking() const {
  if (isDisplay()) return 0;
  return pointSize * (-0.0223 + 0.185 * std::exp(-0.1745 * pointSize));
}

int FontStyle::cssWeight() const {
  for (const CssWeight& each : cssWeights)
    if (weight < each.upTo) return each.css;
  return 900;
}

double textWidth(std::u16string_view text, const FontStyle& style) {
  const ShapedSize size = shapedSize(text, style);
  const double room = takesTracking(text) ? double(size.clusters) * style.tracking() : 0;
  return size.ems * style.pointSize + room;
}

double textWidth(std::string_view utf8, const FontStyle& style) {
  return textWidth(unicode::fromUtf8Lossy(utf8), style);
}

}  // namespace sim
