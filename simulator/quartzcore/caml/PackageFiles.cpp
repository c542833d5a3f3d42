#include "simulator/quartzcore/caml/PackageFiles.h"

#include <filesystem>

#include "objc/Message.h"
#include "simulator/foundation/Kind.h"
#include "simulator/foundation/NSArray.h"
#include "simulator/foundation/NSDictionary.h"
#include "simulator/foundation/NSNumber.h"
#include "simulator/foundation/PropertyList.h"
#include "simulator/foundation/Values.h"
#include "simulator/machine/FileContent.h"
#include "simulator/machine/Phone.h"
#include "simulator/quartzcore/CALayer.h"
#include "simulator/quartzcore/caml/Reader.h"

namespace sim::caml {
namespace {

using objc::Object;

std::string contentOf(const std::string& path) {
  const auto file = Phone::current().file(path);
  auto content = fileContent(file);
  if (!content) throw PackageError(path + ": there is no such file");
  return *std::move(content);
}

objc::Strong<Object> layerOf(const std::string& path, const std::string& folder) {
  const std::string document = contentOf(path);
  try {
    auto layer = read(document, folder);
    if (isA<CALayer>(layer.get())) return layer;
  } catch (const Error& problem) {
    throw PackageError(path + ':' + lineAndColumn(document, problem.offset) + ": " +
                       problem.what());
  }
  throw PackageError(path + ':' + lineAndColumn(document, 0) + ": expected a layer in <caml>",
                     PackageError::noLayerTree);
}

Object indexOf(const std::string& folder) {
  const std::string path = folder + "/index.xml";
  std::string problem;
  const Object index = readPropertyList(Phone::current().file(path), &problem);
  if (!index) throw PackageError(path + ": " + problem);
  if (!isA<NSDictionary>(index)) throw PackageError(path + ": expected a dictionary");
  return index;
}

Object valueIn(Object index, const char* key) {
  return objc::send<Object, "objectForKey:">(index, string(key));
}

std::string rootDocument(Object index, const std::string& folder) {
  const Object name = valueIn(index, "rootDocument");
  const std::string file = isKindOf(name, "NSString") ? text(name) : "";
  const bool isInside = !file.empty() && file.front() != '/' && file.find("..") == file.npos;
  if (!isInside)
    throw PackageError(folder + "/index.xml: expected a file of the package as rootDocument");
  return folder + '/' + file;
}

// Those that are none are left out.
Object publishedNames(Object index) {
  std::vector<Object> names;
  if (const NSArray* given = stateOf<NSArray>(valueIn(index, "publishedObjectNames")))
    for (const auto& name : given->elements)
      if (isKindOf(name.get(), "NSString")) names.push_back(name);
  return array(names);
}

}  // namespace

PackageContents readPackageFolder(const std::string& folder) {
  const Object index = indexOf(folder);
  const NSNumber* flag = stateOf<NSNumber>(valueIn(index, "geometryFlipped"));
  PackageContents contents;
  contents.rootLayer = layerOf(rootDocument(index, folder), folder);
  contents.publishedObjectNames = objc::retain(publishedNames(index));
  // The platform turns it around: true in the file means that y grows downwards, as in views.
  contents.geometryFlipped = flag == nullptr || !flag->as<bool>();
  return contents;
}

PackageContents readPackageDocument(const std::string& file) {
  PackageContents contents;
  contents.rootLayer = layerOf(file, std::filesystem::path(file).parent_path());
  contents.publishedObjectNames = objc::retain(array({}));
  contents.geometryFlipped = true;
  return contents;
}

}  // namespace sim::caml
