// MediaControls (private): the Now Playing module of Control Center.
#pragma once

#include "platform/UIKit.h"

// The layouts of the module, as its header and its controller number them.
enum MRULayout : long { minimizedLayout = 0, routingLayout = 1, expandedLayout = 2 };

// The round button at the right end of the module's header.
struct MRUNowPlayingRoutingButton : UIControl {
  using UIControl::UIControl;
  static Class cls() { return objc::classNamed<"MRUNowPlayingRoutingButton">(); }
  UIView packageView() const { return objc::send<UIView, "packageView">(*this); }
  void setPackageView(UIView view) const { objc::send<void, "setPackageView:">(*this, view); }
  void setActive(bool active) const { objc::send<void, "setActive:">(*this, active); }
};

struct MRUNowPlayingHeaderView : UIView {
  using UIView::UIView;
  static Class cls() { return objc::classNamed<"MRUNowPlayingHeaderView">(); }
  UIView routingButton() const { return objc::send<UIView, "routingButton">(*this); }
  UIView labelView() const { return objc::send<UIView, "labelView">(*this); }
  long layout() const { return objc::send<long, "layout">(*this); }
  UIViewController viewControllerForAncestor() const {
    return objc::send<UIViewController, "_viewControllerForAncestor">(*this);
  }
};

// What the module's controller embeds below its header: the routing panel, usually.
struct MRUEmbeddingView : UIView {
  using UIView::UIView;
  static Class cls() { return objc::classNamed<"MRUEmbeddingView">(); }
  void removeViewController() const { objc::send<void, "removeViewController">(*this); }
  void setEmbeddedViewController(UIViewController controller) const {
    objc::send<void, "setEmbeddedViewController:">(*this, controller);
  }
  void showViewController() const { objc::send<void, "showViewController">(*this); }
};

// The module's whole view.
struct MRUNowPlayingView : UIView {
  using UIView::UIView;
  static Class cls() { return objc::classNamed<"MRUNowPlayingView">(); }
  // Up to 15.
  static bool hasCollapsedEmbeddingView() {
    return class_getInstanceMethod(cls(), objc::selector<"collapsedEmbeddingView">()) != nullptr;
  }
};

struct MRUNowPlayingViewController : UIViewController {
  using UIViewController::UIViewController;
  static Class cls() { return objc::classNamed<"MRUNowPlayingViewController">(); }
  long layout() const { return objc::send<long, "layout">(*this); }
  // Whoever carries out its changes of layout: the module that it was made for, also when its
  // device has gone. nil for none.
  objc::Object delegate() const {
    return objc::respondsTo<"delegate">(*this) ? objc::send<objc::Object, "delegate">(*this)
                                               : objc::Object();
  }
  UIViewController routingViewController() const {
    return objc::send<UIViewController, "routingViewController">(*this);
  }
  MRUEmbeddingView collapsedEmbeddingView() const {
    return objc::send<MRUEmbeddingView, "collapsedEmbeddingView">(view());
  }
  // What a tap on the routing button does: to the routing layout and back.
  void didSelectRoutingButton(objc::Object sender) const {
    objc::send<void, "didSelectRoutingButton:">(*this, sender);
  }
};

// What holds the module's controller in Control Center.
struct MRUControlCenterViewController : UIViewController {
  using UIViewController::UIViewController;
  static Class cls() { return objc::classNamed<"MRUControlCenterViewController">(); }
};

struct UIMotionEvent : objc::Object {
  using Object::Object;
};
