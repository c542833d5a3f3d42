#include "objc/Class.h"
#include "tests/uikit/UIKitTest.h"

namespace sim {
namespace {

// Writes down what it is told.
struct Listener : objc::Implementation<Listener> {
  static inline std::vector<std::string> heard;
  void willMoveToWindow(Object window) { heard.push_back(window ? "will window" : "will none"); }
  void didMoveToWindow() { heard.push_back("did window"); }
  void willMoveToSuperview(Object view) { heard.push_back(view ? "will move" : "will leave"); }
  void didMoveToSuperview() { heard.push_back("did move"); }

  static void registerClass() {
    objc::ClassBuilder<Listener>("ListeningView", "UIView")
        .method<"willMoveToWindow:", &Listener::willMoveToWindow>()
        .method<"didMoveToWindow", &Listener::didMoveToWindow>()
        .method<"willMoveToSuperview:", &Listener::willMoveToSuperview>()
        .method<"didMoveToSuperview", &Listener::didMoveToSuperview>()
        .finish();
  }
};

class Hierarchy : public UIKitTest {
 protected:
  Hierarchy() {
    if (cls("ListeningView") == nullptr) Listener::registerClass();
    Listener::heard.clear();
  }
  static std::vector<Object> subviews(Object view) {
    const Object all = send<Object, "subviews">(view);
    std::vector<Object> list;
    for (unsigned long i = 0; i < send<unsigned long, "count">(all); ++i)
      list.push_back(send<Object, "objectAtIndex:">(all, i));
    return list;
  }
};

using Views = std::vector<Object>;

TEST_F(Hierarchy, KeepsTheOrderOfItsSubviewsAndLayers) {
  const auto parent = make("UIView");
  const auto a = make("UIView"), b = make("UIView"), c = make("UIView"), d = make("UIView");
  add(parent, a);
  add(parent, b);
  send<void, "insertSubview:atIndex:">(parent.get(), c.get(), 1L);
  EXPECT_EQ(subviews(parent), (Views{a, c, b}));
  send<void, "insertSubview:aboveSubview:">(parent.get(), d.get(), a.get());
  EXPECT_EQ(subviews(parent), (Views{a, d, c, b}));
  send<void, "insertSubview:belowSubview:">(parent.get(), b.get(), a.get());
  EXPECT_EQ(subviews(parent), (Views{b, a, d, c}));
  send<void, "bringSubviewToFront:">(parent.get(), a.get());
  send<void, "sendSubviewToBack:">(parent.get(), c.get());
  EXPECT_EQ(subviews(parent), (Views{c, b, d, a}));
  const Object layers = send<Object, "sublayers">(send<Object, "layer">(parent.get()));
  EXPECT_EQ((send<unsigned long, "count">(layers)), 4U);
  EXPECT_EQ((send<Object, "objectAtIndex:">(layers, 1UL)), (send<Object, "layer">(b.get())));
  EXPECT_EQ((send<Object, "objectAtIndex:">(layers, 3UL)), (send<Object, "layer">(a.get())));
}

TEST_F(Hierarchy, MovesSubviewsTowardsTheFront) {
  const auto parent = make("UIView");
  const auto a = make("UIView"), b = make("UIView"), c = make("UIView");
  for (const auto& each : {a, b, c}) add(parent, each);
  send<void, "insertSubview:aboveSubview:">(parent.get(), a.get(), b.get());
  EXPECT_EQ(subviews(parent), (Views{b, a, c}));
  for (const auto& each : {a, b, c}) send<void, "removeFromSuperview">(each.get());
  EXPECT_FALSE((send<Object, "sublayers">(send<Object, "layer">(parent.get()))));
  EXPECT_FALSE((send<Object, "superlayer">(send<Object, "layer">(a.get()))));
}

TEST_F(Hierarchy, ViewsStayBelowALayerThatIsNoViews) {
  const auto parent = make("UIView");
  const auto view = make("UIView"), over = make("UIView");
  const Object layer = send<Object, "layer">(parent.get());
  const Object extra = send<Object, "layer">(cls("CALayer"));
  add(parent, over);
  send<void, "insertSublayer:atIndex:">(layer, extra, 0U);
  send<void, "insertSubview:belowSubview:">(parent.get(), view.get(), over.get());
  const Object layers = send<Object, "sublayers">(layer);
  EXPECT_EQ((send<Object, "objectAtIndex:">(layers, 0UL)), extra);
  EXPECT_EQ((send<Object, "objectAtIndex:">(layers, 1UL)), (send<Object, "layer">(view.get())));
  send<void, "removeFromSuperlayer">(extra);
  EXPECT_EQ((send<unsigned long, "count">(send<Object, "sublayers">(layer))), 2U);
}

TEST_F(Hierarchy, TellsViewsWhereTheyGo) {
  const auto window = shownWindow();
  const auto outer = make("UIView"), inner = make("ListeningView");
  add(outer, inner);
  EXPECT_EQ(Listener::heard, (std::vector<std::string>{"will move", "did move"}));
  Listener::heard.clear();
  add(window, outer);
  EXPECT_EQ(Listener::heard, (std::vector<std::string>{"will window", "did window"}));
  EXPECT_EQ((send<Object, "window">(inner.get())), window.get());
  Listener::heard.clear();
  send<void, "removeFromSuperview">(inner.get());
  EXPECT_EQ(Listener::heard,
            (std::vector<std::string>{"will none", "will leave", "did window", "did move"}));
}

TEST_F(Hierarchy, FindsAncestorsAndTags) {
  const auto root = make("UIView"), middle = make("UIView"), leaf = make("UIView");
  add(root, middle);
  add(middle, leaf);
  EXPECT_TRUE((send<bool, "isDescendantOfView:">(leaf.get(), root.get())));
  EXPECT_TRUE((send<bool, "isDescendantOfView:">(leaf.get(), leaf.get())));
  EXPECT_FALSE((send<bool, "isDescendantOfView:">(root.get(), leaf.get())));
  send<void, "setTag:">(leaf.get(), 7L);
  EXPECT_EQ((send<Object, "viewWithTag:">(root.get(), 7L)), leaf.get());
  EXPECT_FALSE((send<Object, "viewWithTag:">(root.get(), 8L)));
}

TEST_F(Hierarchy, TintComesFromAbove) {
  const auto root = make("UIView"), leaf = make("UIView");
  add(root, leaf);
  const Object white = send<Object, "whiteColor">(cls("UIColor"));
  send<void, "setTintColor:">(root.get(), white);
  EXPECT_EQ((send<Object, "tintColor">(leaf.get())), white);
  send<void, "removeFromSuperview">(leaf.get());
  EXPECT_EQ(description(send<Object, "tintColor">(leaf.get())),
            description(send<Object, "systemBlueColor">(cls("UIColor"))));
}

using HierarchyDeathTest = Hierarchy;

TEST_F(HierarchyDeathTest, AViewIsNotItsOwnSubview) {
  const auto view = make("UIView"), child = make("UIView");
  add(view, child);
  EXPECT_DEATH(add(view, view), "Can't add self as subview");
  EXPECT_DEATH(add(child, view), "subview of its own subview");
}

TEST_F(HierarchyDeathTest, ALayerIsNotBelowItself) {
  const auto layer = make("UIView"), child = make("UIView");
  const Object above = send<Object, "layer">(layer.get()),
               below = send<Object, "layer">(child.get());
  send<void, "addSublayer:">(above, below);
  const char* const problem =
      "CALayerInvalid.*layer <CALayer> is a part of cycle in its layer tree";
  EXPECT_DEATH((send<void, "addSublayer:">(below, below)), problem);
  EXPECT_DEATH((send<void, "addSublayer:">(below, above)), problem);
  EXPECT_DEATH((send<void, "setMask:">(below, above)), problem);
  send<void, "removeFromSuperlayer">(below);
  send<void, "setMask:">(above, below);
  EXPECT_DEATH((send<void, "addSublayer:">(below, above)), problem);
}

TEST_F(Hierarchy, AMaskIsThatOfOneLayer) {
  const auto one = make("UIView"), other = make("UIView"), cut = make("UIView");
  const auto layerOf = [](const auto& view) { return send<Object, "layer">(view.get()); };
  send<void, "setMask:">(layerOf(one), layerOf(cut));
  send<void, "setMask:">(layerOf(other), layerOf(cut));
  EXPECT_FALSE((send<Object, "mask">(layerOf(one))));
  EXPECT_TRUE((send<Object, "mask">(layerOf(other))));
  send<void, "setMask:">(layerOf(other), Object());
  send<void, "addSublayer:">(layerOf(cut), layerOf(other));  // it masks nothing any more
}

TEST_F(HierarchyDeathTest, OnlyViewsAndConstraintsHaveAPlaceThere) {
  const auto view = make("UIView"), stack = make("UIStackView");
  const Object text = string("no view");
  EXPECT_DEATH(add(view, text), "addSubview: expected an object of class UIView, found one of");
  EXPECT_DEATH((send<void, "addArrangedSubview:">(stack.get(), text)), "of class UIView, found");
  EXPECT_DEATH((send<void, "addSublayer:">(send<Object, "layer">(view.get()), text)),
               "of class CALayer, found");
  EXPECT_DEATH((send<void, "addConstraint:">(view.get(), text)), "NSLayoutConstraint, found");
}

}  // namespace
}  // namespace sim
