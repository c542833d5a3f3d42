#include "simulator/coretext/Fonts.h"

#include <hb.h>

#include <algorithm>
#include <map>
#include <string>

#include "simulator/runtime/Fatal.h"

namespace sim {
namespace {

struct Folder {
  const char* path;
  const char* package;
};
constexpr Folder inter = {"/usr/share/fonts/opentype/inter/", "fonts-inter"};
constexpr Folder noto = {"/usr/share/fonts/truetype/noto/", "fonts-noto-core"};
constexpr Folder notoCjk = {"/usr/share/fonts/opentype/noto/", "fonts-noto-cjk"};

hb_font_t* opened(const std::string& path) {
  hb_blob_t* file = hb_blob_create_from_file_or_fail(path.c_str());
  if (file == nullptr) return nullptr;
  hb_face_t* face = hb_face_create(file, 0);
  hb_blob_destroy(file);
  hb_font_t* font = hb_font_create(face);
  hb_face_destroy(face);
  hb_font_make_immutable(font);
  return font;
}

// Opened when text first asks for it, and kept; null for a file that is not there.
hb_font_t* fontAt(const Folder& folder, const std::string& name) {
  static auto* fonts = new std::map<std::string, hb_font_t*>;
  const std::string path = folder.path + name;
  const auto known = fonts->find(path);
  if (known != fonts->end()) return known->second;
  return fonts->emplace(path, opened(path)).first->second;
}

hb_font_t* required(const Folder& folder, const std::string& name) {
  hb_font_t* font = fontAt(folder, name);
  if (font == nullptr)
    sim::runtime::fatal("%s%s is missing, and text is measured with it: install the package %s",
                        folder.path, name.c_str(), folder.package);
  return font;
}

const char* textFace(int css) {
  if (css <= 400) return "Inter-Regular.otf";
  if (css <= 500) return "Inter-Medium.otf";
  return css <= 600 ? "Inter-SemiBold.otf" : "Inter-Bold.otf";
}

const char* displayFace(int css) {
  if (css <= 200) return "InterDisplay-Thin.otf";
  if (css <= 300) return "InterDisplay-Light.otf";
  if (css <= 400) return "InterDisplay-Regular.otf";
  if (css <= 500) return "InterDisplay-Medium.otf";
  return css <= 600 ? "InterDisplay-SemiBold.otf" : "InterDisplay-Bold.otf";
}

// The file's name holds the script's: "NotoSansOldTurkic-Regular.ttf". Rare scripts have none.
hb_font_t* notoOf(UScriptCode script, const char* ending) {
  hb_font_t* common = required(noto, std::string("NotoSans") + ending);
  if (script == USCRIPT_LATIN || script == USCRIPT_GREEK || script == USCRIPT_CYRILLIC)
    return common;
  std::string name = uscript_getName(script);
  name.erase(std::remove(name.begin(), name.end(), '_'), name.end());
  return fontAt(noto, "NotoSans" + name + ending);
}

bool isOfFarEast(UScriptCode script) {
  return script == USCRIPT_HAN || script == USCRIPT_HIRAGANA || script == USCRIPT_KATAKANA ||
         script == USCRIPT_HANGUL || script == USCRIPT_BOPOMOFO;
}

bool has(hb_font_t* font, char32_t character) {
  hb_codepoint_t glyph = 0;
  return font != nullptr && hb_font_get_nominal_glyph(font, character, &glyph) != 0;
}

}  // namespace

hb_font_t* fontWith(char32_t character, UScriptCode script, const FontStyle& style) {
  const int css = style.cssWeight();
  hb_font_t* own = required(inter, style.isDisplay() ? displayFace(css) : textFace(css));
  if (has(own, character)) return own;
  const bool isBold = css >= 600;
  if (script != USCRIPT_COMMON && !isOfFarEast(script)) {
    hb_font_t* other = notoOf(script, isBold ? "-Bold.ttf" : "-Regular.ttf");
    if (has(other, character)) return other;
  }
  hb_font_t* cjk = required(notoCjk, isBold ? "NotoSansCJK-Bold.ttc" : "NotoSansCJK-Regular.ttc");
  if (has(cjk, character)) return cjk;
  for (const char* symbols :
       {"NotoSansSymbols-Regular.ttf", "NotoSansSymbols2-Regular.ttf", "NotoSansMath-Regular.ttf"})
    if (hb_font_t* font = required(noto, symbols); has(font, character)) return font;
  return nullptr;
}

}  // namespace sim
