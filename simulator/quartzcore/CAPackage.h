// A tree of layers with its states, read from a folder: what animated glyphs are made of.
#pragma once

#include "objc/Class.h"

namespace sim {

struct CAPackage : objc::Implementation<CAPackage> {
  objc::Strong<objc::Object> rootLayer;             // CALayer, never nil in a package that was read
  objc::Strong<objc::Object> publishedObjectNames;  // NSArray of NSString
  bool geometryFlipped = false;                     // whether y grows upwards

  // Types: "com.apple.coreanimation-bundle" for a folder with its index.xml,
  // "com.apple.coreanimation-xml" for a document alone. Autoreleased; nil, and an NSError in *error
  // unless that is NULL, for what cannot be read.
  static objc::Object packageWithContentsOfURL(objc::Object url, objc::Object type,
                                               objc::Object options, id* error);

  static void registerClass();
};

}  // namespace sim
