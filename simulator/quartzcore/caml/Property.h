// What a property of a layer, a state or an animation takes as its value in a document.
#pragma once

#include <string>
#include <string_view>

#include "objc/Ownership.h"

namespace sim::caml {

enum class Kind {
  real,
  integer,
  flag,
  point,
  size,
  rect,
  transform,
  color,
  path,
  numbers,  // an array of them
  text,
  image,
  object,   // of a class
  objects,  // an array of such
  value,    // of whatever kind: without a type, a number or a text
  unknown,  // a key without accessors, which layers and animations keep; values as above
};

struct Property {
  Kind kind;
  const char* cls = nullptr;  // of object and objects

  // "a color", for errors.
  std::string noun() const;
};

// Of an object's key, or of a path like "position.x". Throws std::invalid_argument where there is
// no such property, or it is none for documents.
Property propertyOf(objc::Object object, const std::string& keyPath);

// A value from its text, autoreleased. Throws std::invalid_argument where the text is none; object,
// objects and image have no text.
objc::Object valueOf(const Property& property, std::string_view text);

// Whether an object may be the value: then setting it cannot fail.
bool isValueOf(const Property& property, objc::Object value);

}  // namespace sim::caml
