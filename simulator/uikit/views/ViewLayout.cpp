#include "simulator/uikit/views/ViewLayout.h"

#include <memory>

#include "objc/Message.h"
#include "simulator/machine/Phone.h"
#include "simulator/uikit/application/UIWindow.h"
#include "simulator/uikit/autolayout/LayoutEngine.h"
#include "simulator/uikit/views/ViewTree.h"

namespace sim {
namespace {

using objc::Object;
using objc::Strong;

constexpr double secondsPerFrame = 1.0 / 60;

struct LayoutPasses {
  std::weak_ptr<int> queued;  // lives as long as the entry of the queue
};

std::weak_ptr<int>& queuedPass() {
  return Phone::current().state<LayoutPasses>().queued;
}

void layOut(Object view) {
  UIView& state = UIView::of(view);
  const Strong<Object> kept = objc::retain(view);
  const Strong<Object> controller = objc::retain(state.controller);
  state.needsLayout = false;
  objc::send<void, "viewWillLayoutSubviews">(controller.get());
  solveIfNeeded(view);  // sizes that this depends on may just have changed
  objc::send<void, "layoutSubviews">(view);
  objc::send<void, "viewDidLayoutSubviews">(controller.get());
}

// Whether anything needed it.
bool layOutTree(Object view) {
  bool any = UIView::of(view).needsLayout;
  if (any) layOut(view);
  const auto children = UIView::of(view).children;
  for (const auto& child : children) any = layOutTree(child.get()) || any;
  return any;
}

bool layOutWindows() {
  bool any = false;
  for (const auto& window : UIWindow::visibleWindows()) {
    solveIfNeeded(window);
    any = layOutTree(window) || any;
  }
  return any;
}

// Layout may ask for more layout; what never comes to rest goes on with the next frame.
void layoutPass() {
  constexpr int enoughRounds = 10;
  for (int round = 0; round < enoughRounds; ++round)
    if (!layOutWindows()) return;
  queuedPass().reset();
  Phone& phone = Phone::current();
  auto token = std::make_shared<int>();
  queuedPass() = token;
  phone.queue.add(phone.clock.uptime() + nanoseconds(secondsPerFrame), [token] { layoutPass(); });
}

}  // namespace

void queueLayoutPass() {
  if (!queuedPass().expired()) return;
  auto token = std::make_shared<int>();
  queuedPass() = token;
  Phone::current().queue.addNow([token] { layoutPass(); });
}

void layoutIfNeeded(Object view) {
  solveIfNeeded(view);
  Object start = view;
  for (Object above = view; above; above = UIView::of(above).parent)
    if (UIView::of(above).needsLayout) start = above;
  constexpr int enoughRounds = 10;
  for (int round = 0; round < enoughRounds && layOutTree(start); ++round) {
    solveIfNeeded(view);
    start = view;
  }
}

}  // namespace sim
