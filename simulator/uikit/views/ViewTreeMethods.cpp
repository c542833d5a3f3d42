// UIView: the messages that build the tree and walk it.
#include <vector>

#include "objc/Message.h"
#include "simulator/foundation/Values.h"
#include "simulator/uikit/views/ViewMethods.h"
#include "simulator/uikit/views/ViewTree.h"

namespace sim {
namespace {

using objc::Object;

constexpr auto onTop = std::size_t(-1);

Object subviews(Object self) {
  const auto& children = UIView::of(self).children;
  return array(std::vector<Object>(children.begin(), children.end()));
}

void addSubview(Object self, Object view) {
  insertSubview(self, view, onTop);
}
void insertAtIndex(Object self, Object view, long index) {
  insertSubview(self, view, std::size_t(index));
}
// Above or below a view that is no subview means on top.
void insertAbove(Object self, Object view, Object sibling) {
  const std::size_t index = indexOfSubview(self, sibling);
  insertSubview(self, view, index == UIView::of(self).children.size() ? onTop : index + 1);
}
void insertBelow(Object self, Object view, Object sibling) {
  insertSubview(self, view, indexOfSubview(self, sibling));
}

bool isSubview(Object self, Object view) {
  return view && UIView::of(view).parent == self;
}
void bringToFront(Object self, Object view) {
  if (isSubview(self, view)) insertSubview(self, view, onTop);
}
void sendToBack(Object self, Object view) {
  if (isSubview(self, view)) insertSubview(self, view, 0);
}

Object viewWithTag(Object self, long tag) {
  if (UIView::of(self).tag == tag) return self;
  for (const auto& child : UIView::of(self).children)
    if (const Object found = objc::send<Object, "viewWithTag:">(child.get(), tag)) return found;
  return nullptr;
}

// For subclasses.
void ignore(Object, Object) {}
void ignorePlain(Object) {}

}  // namespace

void addViewTree(StandIn<UIView>& view) {
  view.readonlyProperty<"superview", &UIView::parent>()
      .method<"subviews", &subviews>()
      .method<"window", &windowOf>()
      .method<"addSubview:", &addSubview>()
      .method<"insertSubview:atIndex:", &insertAtIndex>()
      .method<"insertSubview:aboveSubview:", &insertAbove>()
      .method<"insertSubview:belowSubview:", &insertBelow>()
      .method<"bringSubviewToFront:", &bringToFront>()
      .method<"sendSubviewToBack:", &sendToBack>()
      .method<"removeFromSuperview", &removeFromSuperview>()
      .method<"isDescendantOfView:", &isDescendant>()
      .property<"tag", &UIView::tag>()
      .method<"viewWithTag:", &viewWithTag>()
      .method<"willMoveToSuperview:", &ignore>()
      .method<"didMoveToSuperview", &ignorePlain>()
      .method<"willMoveToWindow:", &ignore>()
      .method<"didMoveToWindow", &ignorePlain>()
      .method<"didAddSubview:", &ignore>()
      .method<"willRemoveSubview:", &ignore>();
}

}  // namespace sim
