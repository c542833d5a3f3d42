#include "simulator/uikit/resources/UIImage.h"

#include <filesystem>
#include <vector>

#include "simulator/foundation/Exception.h"
#include "simulator/foundation/Kind.h"
#include "simulator/foundation/Values.h"
#include "simulator/machine/Phone.h"
#include "simulator/standin/StandIn.h"
#include "simulator/uikit/application/UIScreen.h"
#include "simulator/uikit/resources/PngHeader.h"

namespace sim {
namespace {

using objc::Object;

struct Variant {
  std::string path;  // on the phone
  int scale;
};

// The digit in "icon@3x.png" and "icon@3x~iphone.png"; 0 without one.
int scaleInName(const std::string& path) {
  const std::string name = std::filesystem::path(path).stem();
  const std::string base = name.substr(0, name.find('~'));
  const auto at = base.rfind('@');
  const bool named = at != base.npos && base.size() == at + 3 && base[at + 2] == 'x' &&
                     base[at + 1] >= '1' && base[at + 1] <= '3';
  return named ? base[at + 1] - '0' : 0;
}

// In order of preference.
std::vector<Variant> variantsOf(const std::string& path) {
  if (const int scale = scaleInName(path); scale > 0) return {{path, scale}};
  const std::filesystem::path whole(path);
  const std::string stem = whole.parent_path() / whole.stem();
  const std::string extension = whole.extension();
  std::vector<Variant> variants;
  for (int scale = int(UIScreen::mainScale); scale > 1; --scale)
    variants.push_back({stem + '@' + std::to_string(scale) + 'x' + extension, scale});
  variants.push_back({path, 1});
  return variants;
}

Object imageOf(const Variant& variant) {
  const auto pixels = pngSize(Phone::current().file(variant.path));
  if (!pixels) return nullptr;
  objc::Strong<Object> made = UIImage::make();
  UIImage& image = UIImage::of(made.get());
  image.file = variant.path;
  image.scale = variant.scale;
  image.size = {pixels->width / image.scale, pixels->height / image.scale};
  return autorelease(std::move(made));
}

Object initWithContentsOfFile(Object self, Object path) {
  const UIImage* loaded = stateOf<UIImage>(imageWithContentsOfFile(path));
  if (loaded == nullptr) return failInit(self.get());
  UIImage::of(self) = *loaded;
  return self;
}

const char* nameOfMode(long mode) {
  return mode == 1 ? "alwaysOriginal" : mode == 2 ? "alwaysTemplate" : "automatic";
}

// Without folder, scale and extension: "backIcon".
Object fileName(Object self) {
  const std::string name = std::filesystem::path(UIImage::of(self).file).stem();
  return string(name.substr(0, name.find_first_of("@~")));
}

bool isEqual(Object self, Object other) {
  const UIImage* image = stateOf<UIImage>(other);
  const UIImage& mine = UIImage::of(self);
  return image != nullptr && image->file == mine.file &&
         image->renderingMode == mine.renderingMode &&
         image->flipsForRightToLeftLayoutDirection == mine.flipsForRightToLeftLayoutDirection;
}
unsigned long hash(Object self) {
  return std::hash<std::string>()(UIImage::of(self).file);
}

}  // namespace

Object imageWithContentsOfFile(Object path) {
  const std::string given = text(path);
  if (given.empty()) return nullptr;
  for (const Variant& variant : variantsOf(given))
    if (const Object image = imageOf(variant)) return image;
  return nullptr;
}

Object UIImage::withRenderingMode(long mode) const {
  objc::Strong<Object> made = make();
  of(made.get()) = *this;
  of(made.get()).renderingMode = mode;
  return autorelease(std::move(made));
}

Object UIImage::flippedForRightToLeft() const {
  objc::Strong<Object> made = make();
  of(made.get()) = *this;
  of(made.get()).flipsForRightToLeftLayoutDirection = true;
  return autorelease(std::move(made));
}

Object UIImage::description() const {
  const std::string address = addressDescription(Object(self()));
  return string(address.substr(0, address.size() - 1) + " anonymous {" + notation(size.width) +
                ", " + notation(size.height) + "} renderingMode=" + nameOfMode(renderingMode) +
                '>');
}

void UIImage::registerClass() {
  StandIn<UIImage>("UIKit", "UIImage", "NSObject")
      .partialClassMethod<"imageWithContentsOfFile:", &imageWithContentsOfFile>(
          "PNG only, of which the header must be valid")
      .partial<"initWithContentsOfFile:", &initWithContentsOfFile>(
          "PNG only, of which the header must be valid")
      .readonlyProperty<"size", &UIImage::size>()
      .readonlyProperty<"scale", &UIImage::scale>()
      .readonlyProperty<"renderingMode", &UIImage::renderingMode>()
      .method<"imageWithRenderingMode:", &UIImage::withRenderingMode>()
      .method<"imageFlippedForRightToLeftLayoutDirection", &UIImage::flippedForRightToLeft>()
      .readonlyProperty<"flipsForRightToLeftLayoutDirection",
                        &UIImage::flipsForRightToLeftLayoutDirection>()
      .partial<"isEqual:", &isEqual>("images of the same file are equal, whatever they show")
      .method<"hash", &hash>()
      .method<"description", &UIImage::description>()
      .partial<"sim_fileName", &fileName>("the simulator's own, for scripts: \"backIcon\"")
      .finish();
}

}  // namespace sim
