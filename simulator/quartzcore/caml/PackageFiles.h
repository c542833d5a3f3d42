// The files of a package: a folder with an index and the document that it names, or a document.
#pragma once

#include <stdexcept>
#include <string>

#include "objc/Ownership.h"

namespace sim::caml {

struct PackageContents {
  objc::Strong<objc::Object> rootLayer;             // CALayer
  objc::Strong<objc::Object> publishedObjectNames;  // NSArray of NSString
  bool geometryFlipped = false;                     // whether y grows upwards
};

// Says which file, where in it, what was expected and what was found.
class PackageError : public std::runtime_error {
 public:
  // The platform's.
  static constexpr long cannotLoad = 2, noLayerTree = 3;

  explicit PackageError(const std::string& problem, long itsCode = cannotLoad)
      : std::runtime_error(problem), code(itsCode) {}

  long code;
};

// Paths of the phone. Both throw PackageError.
PackageContents readPackageFolder(const std::string& folder);
PackageContents readPackageDocument(const std::string& file);

}  // namespace sim::caml
