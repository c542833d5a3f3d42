#include "simulator/uikit/nib/NibAppearance.h"

#include "objc/Message.h"
#include "simulator/foundation/Values.h"
#include "simulator/machine/Phone.h"
#include "simulator/uikit/nib/NibDecoding.h"

namespace sim {
namespace {

using objc::Object;
using objc::Strong;

double real(NibDecoding& decoding, std::uint32_t index, const std::string& key) {
  const nib::Value* found = decoding.value(index, key);
  if (found == nullptr) return 0;
  if (const auto* value = std::get_if<float>(&found->content)) return double(*value);
  const auto* value = std::get_if<double>(&found->content);
  return value == nullptr ? 0 : *value;
}

std::int64_t integer(NibDecoding& decoding, std::uint32_t index, const char* key) {
  const nib::Value* found = decoding.value(index, key);
  const auto* value = found == nullptr ? nullptr : std::get_if<nib::Integer>(&found->content);
  return value == nullptr ? 0 : value->value;
}

bool flag(NibDecoding& decoding, std::uint32_t index, const char* key) {
  const nib::Value* found = decoding.value(index, key);
  const auto* value = found == nullptr ? nullptr : std::get_if<bool>(&found->content);
  return value != nullptr && *value;
}

// A colour that is no float is there a second time in full.
double component(NibDecoding& decoding, std::uint32_t index, const std::string& key) {
  const std::string precise = key + "-Double";
  const bool isThere = decoding.value(index, precise) != nullptr;
  return real(decoding, index, isThere ? precise : key);
}

struct Usage {
  const char* name;
  double weight;  // as UIFont's constants have it
};
constexpr Usage usages[] = {
    {"CTFontUltraLightUsage", -0.8}, {"CTFontThinUsage", -0.6},   {"CTFontLightUsage", -0.4},
    {"CTFontRegularUsage", 0},       {"CTFontMediumUsage", 0.23}, {"CTFontDemiUsage", 0.3},
    {"CTFontEmphasizedUsage", 0.4},  {"CTFontHeavyUsage", 0.56},  {"CTFontBlackUsage", 0.62}};
constexpr std::int64_t boldTrait = 2;
constexpr double boldWeight = 0.4;

double weightOf(NibDecoding& decoding, std::uint32_t font) {
  if (const auto descriptor = decoding.reference(font, "UIFontDescriptor")) {
    const auto attributes = decoding.reference(*descriptor, "UIFontDescriptorAttributes");
    const Object usage = objc::send<Object, "objectForKey:">(
        attributes ? decoding.object(*attributes) : Object(), string("NSCTFontUIUsageAttribute"));
    for (const Usage& each : usages)
      if (isKindOf(usage, "NSString") && text(usage) == each.name) return each.weight;
  }
  return (integer(decoding, font, "UIFontTraits") & boldTrait) != 0 ? boldWeight : 0;
}

Object sentWhenKnown(Class cls, const std::string& name) {
  const SEL selector = sel_registerName(name.c_str());
  if (name.empty() ||
      !class_respondsToSelector(object_getClass(reinterpret_cast<id>(cls)), selector))
    return nullptr;
  return objc::send<Object, "performSelector:">(cls, selector);
}

}  // namespace

Strong<Object> nibColor(NibDecoding& decoding, std::uint32_t index) {
  Class cls = objc_getClass("UIColor");
  if (const Object named = sentWhenKnown(cls, decoding.text(index, "UISystemColorName")))
    return objc::retain(named);
  const auto value = [&](const char* key) { return component(decoding, index, key); };
  switch (integer(decoding, index, "UIColorComponentCount")) {
    case 2:
      return objc::retain(
          objc::send<Object, "colorWithWhite:alpha:">(cls, value("UIWhite"), value("UIAlpha")));
    case 4:
      return objc::retain(objc::send<Object, "colorWithRed:green:blue:alpha:">(
          cls, value("UIRed"), value("UIGreen"), value("UIBlue"), value("UIAlpha")));
    default:
      return objc::retain(objc::send<Object, "clearColor">(cls));
  }
}

Strong<Object> nibFont(NibDecoding& decoding, std::uint32_t index) {
  Class cls = objc_getClass("UIFont");
  const double size = real(decoding, index, "UIFontPointSize");
  if (!flag(decoding, index, "UISystemFont"))
    Phone::current().journal.record("log " + sim::quoted("the system font stands in for " +
                                                         decoding.text(index, "UIFontName")));
  return objc::retain(
      objc::send<Object, "systemFontOfSize:weight:">(cls, size, weightOf(decoding, index)));
}

Strong<Object> nibImage(NibDecoding& decoding, std::uint32_t index) {
  const std::string name = decoding.text(index, "UIResourceName");
  const Object bundle = decoding.surroundings().bundle;
  const Object path =
      objc::send<Object, "pathForResource:ofType:">(bundle, string(name), string("png"));
  const Object image =
      objc::send<Object, "imageWithContentsOfFile:">(objc_getClass("UIImage"), path);
  if (image) return objc::retain(image);
  const Object identifier = objc::send<Object, "bundleIdentifier">(bundle);
  Phone::current().journal.record(
      "log " + sim::quoted("Could not load the \"" + name +
                           "\" image referenced from a nib in the bundle with identifier \"" +
                           description(identifier) + "\""));
  return nullptr;
}

}  // namespace sim
