// NSArray and, on top of its state, NSMutableArray.
#pragma once

#include <vector>

#include "objc/Class.h"

namespace sim {

struct NSArray : objc::Implementation<NSArray> {
  std::vector<objc::Strong<objc::Object>> elements;

  static void registerClass();
};

// Raises for an index at or past the end, in the platform's words.
void requireIndex(objc::Object array, const char* selector, unsigned long index);

// NSNotFound when no element equals it.
unsigned long indexOf(const NSArray& array, objc::Object wanted);

// The elements of an argument: none for nil. Raises for another class.
const std::vector<objc::Strong<objc::Object>>& elementsOf(objc::Object array);

// Autoreleased, of that class or a subclass.
objc::Object makeArray(id cls, std::vector<objc::Strong<objc::Object>> elements);

// Raises for nil, as the initialisers do.
void addElement(std::vector<objc::Strong<objc::Object>>& elements, objc::Object element);

}  // namespace sim
