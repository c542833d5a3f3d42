// NSArray and, on top of its state, NSMutableArray.
#pragma once

#include <vector>

#include "objc/Class.h"

namespace sim {

struct NSArray : objc::Implementation<NSArray> {
  using Elements = std::vector<objc::Strong<objc::Object>>;
  Elements elements;

  static void registerClass();
};

// Raises for an index at or past the end, in the platform's words.
void requireIndex(objc::Object array, const char* selector, unsigned long index);

// NSNotFound when no element equals it.
unsigned long indexOf(const NSArray& array, objc::Object wanted);

// The elements of an argument: none for nil. Raises for another class.
const NSArray::Elements& elementsOf(objc::Object array);

// Autoreleased, of that class or a subclass.
objc::Object makeArray(id cls, NSArray::Elements elements);

// Raises for nil, as the initialisers do.
void addElement(NSArray::Elements& elements, objc::Object element);

}  // namespace sim
