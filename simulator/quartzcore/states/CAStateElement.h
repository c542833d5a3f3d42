// One change of a layer tree that a state makes. Each kind is a class of its own.
#pragma once

#include <vector>

#include "objc/Class.h"

namespace sim {

// How the change is taken back.
struct StateUndo {
  objc::Strong<objc::Object> target;  // CALayer
  objc::Strong<objc::Object> keyPath;
  objc::Strong<objc::Object> before;  // the value, or the array of sublayers
};

struct CAStateElement : objc::Implementation<CAStateElement> {
  objc::Weak<objc::Object> target;  // CALayer: the tree holds the states

  static void registerClass();
};

struct CAStateSetValue : objc::Implementation<CAStateSetValue> {
  objc::Strong<objc::Object> keyPath;  // NSString
  objc::Strong<objc::Object> value;

  static void registerClass();
};

// Both know the array of sublayers alone; other arrays are left as they are.
struct CAStateAddElement : objc::Implementation<CAStateAddElement> {
  objc::Strong<objc::Object> keyPath;  // NSString
  objc::Strong<objc::Object> object;   // CALayer

  static void registerClass();
};

struct CAStateRemoveElement : objc::Implementation<CAStateRemoveElement> {
  objc::Strong<objc::Object> keyPath;  // NSString
  objc::Strong<objc::Object> object;   // CALayer

  static void registerClass();
};

struct CAStateAddAnimation : objc::Implementation<CAStateAddAnimation> {
  objc::Strong<objc::Object> key;        // NSString
  objc::Strong<objc::Object> animation;  // CAAnimation

  static void registerClass();
};

struct CAStateRemoveAnimation : objc::Implementation<CAStateRemoveAnimation> {
  objc::Strong<objc::Object> key;  // NSString

  static void registerClass();
};

// Makes the change and gives back how to undo it; without a target, or for an
// animation, nothing happens.
std::vector<StateUndo> applyStateElement(objc::Object element);
void undo(const StateUndo& change);

}  // namespace sim
