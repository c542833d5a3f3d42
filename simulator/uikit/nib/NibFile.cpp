#include "simulator/uikit/nib/NibFile.h"

#include <filesystem>

#include "objc/Message.h"
#include "simulator/foundation/Exception.h"
#include "simulator/foundation/Values.h"
#include "simulator/machine/FileContent.h"
#include "simulator/machine/Phone.h"
#include "simulator/uikit/nib/NibConnections.h"
#include "tools/nibc/nib/Reader.h"

namespace sim {
namespace {

using objc::Object;

// A layout may be a folder with a file for each range of versions.
std::filesystem::path layoutFile(const std::filesystem::path& path) {
  std::error_code problem;  // such as a link to itself
  if (!std::filesystem::is_directory(path, problem)) return path;
  for (const char* name :
       {"objects-14.0+.nib", "objects-13.0+.nib", "objects-12.3+.nib", "objects-11.0+.nib",
        "objects-9.1+.nib", "objects-8.0+.nib", "objects.nib"})
    if (std::filesystem::exists(path / name, problem)) return path / name;
  return path / "runtime.nib";
}

[[noreturn]] void couldNotLoad(Object bundle, const std::string& name) {
  raiseException(
      "NSInternalInconsistencyException",
      "Could not load NIB in bundle: '" + description(bundle) + "' with name '" + name + "'");
}

nib::Archive archiveOf(const NibFile& file) {
  try {
    return nib::read(file.bytes);
  } catch (const nib::FormatError& error) {
    raiseException("NSInvalidUnarchiveOperationException",
                   "the nib '" + file.name + "' cannot be read: " + error.what());
  }
}

// The lists of the root object, by their keys.
std::vector<std::uint32_t> list(const NibDecoding& decoding, const char* key) {
  const auto array = decoding.reference(0, key);
  return array ? decoding.elements(*array) : std::vector<std::uint32_t>();
}

bool isProxy(const NibDecoding& decoding, std::uint32_t index) {
  return decoding.className(index) == "UIProxyObject";
}

void applyRuntimeAttributes(NibDecoding& decoding) {
  for (const std::uint32_t each : list(decoding, "UINibKeyValuePairsKey")) {
    const auto target = decoding.reference(each, "UIObject");
    const auto value = decoding.reference(each, "UIValue");
    if (target)
      objc::send<void, "setValue:forKeyPath:">(decoding.object(*target),
                                               value ? decoding.object(*value) : Object(),
                                               string(decoding.text(each, "UIKeyPath")));
  }
}

}  // namespace

NibFile NibFile::named(Object name, Object givenBundle) {
  const Object bundle =
      givenBundle ? givenBundle : objc::send<Object, "mainBundle">(objc_getClass("NSBundle"));
  const Object path = objc::send<Object, "pathForResource:ofType:">(bundle, name, string("nib"));
  const auto file = path ? layoutFile(Phone::current().file(text(path))) : std::filesystem::path();
  const auto content = fileContent(file);
  if (!content) couldNotLoad(bundle, text(name));
  return {*content, text(name), objc::retain(bundle)};
}

// In the platform's order: what connections refer to is made first, and connected last.
Object NibFile::instantiate(Object owner, Object options) const {
  const nib::Archive archive = archiveOf(*this);
  const Object externals =
      objc::send<Object, "objectForKey:">(options, string("UINibExternalObjects"));
  NibDecoding decoding(archive, {owner, externals, bundle.get()});
  NibConnections connections(decoding, list(decoding, "UINibConnectionsKey"));
  std::vector<Object> topLevel;
  for (const std::uint32_t each : list(decoding, "UINibTopLevelObjectsKey"))
    if (!isProxy(decoding, each)) topLevel.push_back(decoding.object(each));
  const auto objects = list(decoding, "UINibObjectsKey");
  for (const std::uint32_t each : objects) decoding.object(each);
  applyRuntimeAttributes(decoding);
  connections.connect();
  for (const std::uint32_t each : objects)
    if (!isProxy(decoding, each)) objc::send<void, "awakeFromNib">(decoding.object(each));
  return array(topLevel);
}

}  // namespace sim
