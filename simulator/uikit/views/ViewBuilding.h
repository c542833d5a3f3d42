// How the host's own C++ builds its views. Every step does nothing with nil, so that a phone
// without one of the classes lacks that view and nothing else.
#pragma once

#include <functional>

#include "objc/Ownership.h"
#include "simulator/coregraphics/Geometry.h"

namespace sim {

// A new view of that class on top of the parent's; nil when the class is missing.
objc::Strong<objc::Object> addView(objc::Object parent, const char* className);

struct LabelStyle {
  double points = 17;
  bool isBold = false;
  double alpha = 1;  // of white
  long alignment = 0;
  long lines = 1;
};
objc::Strong<objc::Object> addLabel(objc::Object parent, const LabelStyle& style);

// White of that opacity, or black; autoreleased.
objc::Object whiteColor(double alpha);
objc::Object blackColor(double alpha);
objc::Object rgbColor(double red, double green, double blue, double alpha = 1);

void setFrame(objc::Object view, CGRect frame);
CGRect frameOf(objc::Object view);  // all zero for nil
CGSize sizeOf(objc::Object view);   // of the bounds; zero for nil
void fill(objc::Object view, objc::Object color, double cornerRadius = 0);
void setAlpha(objc::Object view, double alpha);
void setText(objc::Object label, objc::Object text);
CGSize sizeThatFits(objc::Object view, CGSize room);

// -[UIControl addTarget:action:forControlEvents:] for touch-up-inside.
void addTapTarget(objc::Object control, objc::Object target, SEL action);

// The child's view comes to lie on top in the parent's, which gives it a frame.
void addChildController(objc::Object parent, objc::Object child);
void removeChildController(objc::Object child);

// Of the host's own changes, seen over that time; at once for none.
void changeAnimated(double seconds, const std::function<void()>& changes);

}  // namespace sim
