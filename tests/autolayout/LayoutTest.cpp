#include "tests/autolayout/LayoutTest.h"

namespace sim {

void ContentView::registerClass() {
  objc::ClassBuilder<ContentView>("ContentView", "UIView")
      .method<"intrinsicContentSize", &ContentView::intrinsicContentSize>()
      .finish();
}

LayoutTest::LayoutTest() {
  if (cls("ContentView") == nullptr) ContentView::registerClass();
}

Strong<Object> LayoutTest::child(Object parent, const char* className) const {
  auto made = make(className);
  send<void, "setTranslatesAutoresizingMaskIntoConstraints:">(made.get(), false);
  add(parent, made);
  return made;
}

Strong<Object> LayoutTest::content(Object parent, CGSize size) const {
  auto made = child(parent, "ContentView");
  ContentView::of(made.get()).content = size;
  return made;
}

Strong<Object> LayoutTest::label(Object parent, const char* text) const {
  auto made = child(parent, "UILabel");
  send<void, "setText:">(made.get(), string(text));
  return made;
}

Object LayoutTest::constraint(const Rule& rule) {
  const Object made =
      send<Object, "constraintWithItem:attribute:relatedBy:toItem:attribute:multiplier:constant:">(
          cls("NSLayoutConstraint"), rule.first, rule.attribute, rule.relation, rule.second,
          rule.secondAttribute, rule.multiplier, rule.constant);
  send<void, "setPriority:">(made, rule.priority);
  return made;
}

Object LayoutTest::constrain(const Rule& rule) {
  const Object made = constraint(rule);
  send<void, "setActive:">(made, true);
  return made;
}

Object LayoutTest::width(Object view, double points, float priority) {
  return constrain(
      {.first = view, .attribute = attribute::width, .constant = points, .priority = priority});
}
Object LayoutTest::height(Object view, double points, float priority) {
  return constrain(
      {.first = view, .attribute = attribute::height, .constant = points, .priority = priority});
}

void LayoutTest::place(Object view, double x, double y) {
  const Object parent = send<Object, "superview">(view);
  constrain({view, attribute::left, equal, parent, attribute::left, 1, x});
  constrain({view, attribute::top, equal, parent, attribute::top, 1, y});
}
void LayoutTest::size(Object view, double itsWidth, double itsHeight) {
  width(view, itsWidth);
  height(view, itsHeight);
}

}  // namespace sim
