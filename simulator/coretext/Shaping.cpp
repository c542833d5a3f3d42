#include "simulator/coretext/Shaping.h"

#include <hb.h>
#include <unicode/uchar.h>
#include <unicode/uscript.h>
#include <unicode/utf16.h>

#include <algorithm>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "simulator/coretext/Fonts.h"

namespace sim {
namespace {

// A stretch of one font and one script.
struct Run {
  std::size_t start, end;  // UTF-16 units
  hb_font_t* font;
  UScriptCode script;
};

// Marks, joiners and the like belong to the character before them.
bool isPartOfLast(UChar32 character) {
  return u_getCombiningClass(character) != 0 || u_charType(character) == U_NON_SPACING_MARK ||
         u_charType(character) == U_ENCLOSING_MARK ||
         u_hasBinaryProperty(character, UCHAR_DEFAULT_IGNORABLE_CODE_POINT) != 0;
}

UChar32 takeCharacter(std::u16string_view text, std::size_t& at) {
  UChar32 character = 0;
  U16_NEXT(text.data(), at, text.size(), character);
  return character;
}

bool isShared(UScriptCode script) {
  return script == USCRIPT_COMMON || script == USCRIPT_INHERITED;
}

// The script of each character in turn; what several share, such as a blank, has that of its
// neighbours.
class Scripts {
 public:
  explicit Scripts(std::u16string_view text) {
    for (std::size_t at = 0; at < text.size() && isShared(first_);)
      first_ = own(takeCharacter(text, at));
    last_ = first_;
  }

  UScriptCode of(UChar32 character) {
    const UScriptCode script = own(character);
    return last_ = isShared(script) ? among(character) : script;
  }

 private:
  static UScriptCode own(UChar32 character) {
    UErrorCode problem = U_ZERO_ERROR;
    return uscript_getScript(character, &problem);
  }

  // The Arabic comma is shared, too, but not with Latin letters before it.
  UScriptCode among(UChar32 character) const {
    constexpr std::int32_t most = 32;
    UScriptCode scripts[most];
    UErrorCode problem = U_ZERO_ERROR;
    uscript_getScriptExtensions(character, scripts, most, &problem);
    if (U_FAILURE(problem) || isShared(scripts[0]) || uscript_hasScript(character, last_) != 0)
      return last_;
    return uscript_hasScript(character, first_) != 0 ? first_ : scripts[0];
  }

  UScriptCode first_ = USCRIPT_COMMON, last_ = USCRIPT_COMMON;
};

std::vector<Run> runsOf(std::u16string_view text, const FontStyle& style) {
  std::vector<Run> runs;
  Scripts scripts(text);
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t start = at;
    const UChar32 character = takeCharacter(text, at);
    const UScriptCode script = scripts.of(character);
    hb_font_t* font = !runs.empty() && isPartOfLast(character)
                          ? runs.back().font
                          : fontWith(char32_t(character), script, style);
    if (runs.empty() || runs.back().font != font || runs.back().script != script)
      runs.push_back({start, at, font, script});
    else
      runs.back().end = at;
  }
  return runs;
}

// For what no font has: pictures and the far east are square.
ShapedSize guessed(std::u16string_view text, const Run& run) {
  constexpr double square = 1, letter = 0.6;  // ems
  ShapedSize size;
  for (std::size_t at = run.start; at < run.end;) {
    const UChar32 character = takeCharacter(text, at);
    if (isPartOfLast(character) || u_iscntrl(character)) continue;
    const int width = u_getIntPropertyValue(character, UCHAR_EAST_ASIAN_WIDTH);
    size.ems += width == U_EA_WIDE || width == U_EA_FULLWIDTH ? square : letter;
    ++size.clusters;
  }
  return size;
}

// What text with room between its letters does not do: whoever draws it leaves ligatures out, too.
constexpr hb_feature_t noLigatures = {HB_TAG('l', 'i', 'g', 'a'), 0, 0, unsigned(-1)};
constexpr hb_feature_t noContextLigatures = {HB_TAG('c', 'l', 'i', 'g'), 0, 0, unsigned(-1)};
constexpr hb_feature_t digitsAlike = {HB_TAG('t', 'n', 'u', 'm'), 1, 0, unsigned(-1)};

using Features = std::vector<hb_feature_t>;

Features featuresOf(const FontStyle& style) {
  Features features;
  if (!style.isDisplay()) features = {noLigatures, noContextLigatures};
  if (style.monospacedDigits) features.push_back(digitsAlike);
  return features;
}

hb_script_t tagOf(const Run& run) {
  return hb_script_from_iso15924_tag(hb_tag_from_string(uscript_getShortName(run.script), -1));
}

// One buffer for all, filled with the glyphs of a run.
hb_buffer_t* glyphsOf(std::u16string_view text, const Run& run, const Features& features) {
  static hb_buffer_t* buffer = hb_buffer_create();
  hb_buffer_clear_contents(buffer);
  // With what stands around it, by which Arabic letters join.
  hb_buffer_add_utf16(buffer, reinterpret_cast<const std::uint16_t*>(text.data()), int(text.size()),
                      unsigned(run.start), int(run.end - run.start));
  const hb_script_t script = tagOf(run);
  hb_buffer_set_script(buffer, script);
  const bool isRightToLeft = hb_script_get_horizontal_direction(script) == HB_DIRECTION_RTL;
  hb_buffer_set_direction(buffer, isRightToLeft ? HB_DIRECTION_RTL : HB_DIRECTION_LTR);
  // Not the machine's, which would choose among letter forms.
  static const hb_language_t language = hb_language_from_string("en", -1);
  hb_buffer_set_language(buffer, language);
  hb_shape(run.font, buffer, features.data(), unsigned(features.size()));
  return buffer;
}

bool isDigit(char16_t unit) {
  return unit >= u'0' && unit <= u'9';
}

// Digits of one width are so on the platform in every face; in the display faces of Inter 4.0's
// beta they are not quite.
hb_position_t widestDigit(hb_font_t* font) {
  static auto* known = new std::unordered_map<hb_font_t*, hb_position_t>;
  hb_position_t& widest = (*known)[font];
  if (widest != 0) return widest;
  constexpr std::u16string_view digits = u"0123456789";
  unsigned count = 0;
  const hb_glyph_position_t* positions = hb_buffer_get_glyph_positions(
      glyphsOf(digits, {0, digits.size(), font, USCRIPT_COMMON}, {digitsAlike}), &count);
  for (unsigned i = 0; i < count; ++i) widest = std::max(widest, positions[i].x_advance);
  return widest;
}

ShapedSize shaped(std::u16string_view text, const Run& run, const FontStyle& style) {
  if (run.font == nullptr) return guessed(text, run);
  const hb_position_t digit = style.monospacedDigits ? widestDigit(run.font) : 0;
  hb_buffer_t* buffer = glyphsOf(text, run, featuresOf(style));
  unsigned count = 0;
  const hb_glyph_info_t* glyphs = hb_buffer_get_glyph_infos(buffer, &count);
  const hb_glyph_position_t* positions = hb_buffer_get_glyph_positions(buffer, &count);
  long units = 0, ofCluster = 0;
  ShapedSize size;
  for (unsigned i = 0; i < count; ++i) {
    const unsigned cluster = glyphs[i].cluster;
    ofCluster += digit != 0 && isDigit(text[cluster]) ? digit : positions[i].x_advance;
    if (i + 1 < count && glyphs[i + 1].cluster == cluster) continue;
    if (ofCluster != 0) ++size.clusters;
    units += std::exchange(ofCluster, 0);
  }
  size.ems = double(units) / hb_face_get_upem(hb_font_get_face(run.font));
  return size;
}

// Everything but the size in points that a width depends on.
std::u16string keyOf(std::u16string_view text, const FontStyle& style) {
  std::u16string key(
      1, char16_t(style.cssWeight() * 4 + style.isDisplay() * 2 + style.monospacedDigits));
  return key.append(text);
}

}  // namespace

ShapedSize shapedSize(std::u16string_view text, const FontStyle& style) {
  constexpr std::size_t mostRemembered = 4096;
  static auto* remembered = new std::unordered_map<std::u16string, ShapedSize>;
  std::u16string key = keyOf(text, style);
  const auto known = remembered->find(key);
  if (known != remembered->end()) return known->second;
  ShapedSize whole;
  for (const Run& run : runsOf(text, style)) {
    const ShapedSize size = shaped(text, run, style);
    whole.ems += size.ems;
    whole.clusters += size.clusters;
  }
  if (remembered->size() >= mostRemembered) remembered->clear();
  remembered->emplace(std::move(key), whole);
  return whole;
}

}  // namespace sim
