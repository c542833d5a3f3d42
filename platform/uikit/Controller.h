// UIKit's view controllers, windows, alerts and the application.
#pragma once

#include <utility>

#include "objc/Block.h"
#include "platform/uikit/View.h"

struct UIViewController : NSObject {
  using NSObject::NSObject;
  static objc::Strong<UIViewController> make() {
    return objc::adopt(UIViewController(objc_alloc_init(objc::classNamed<"UIViewController">())));
  }
  UIView view() const { return objc::send<UIView, "view">(*this); }  // loads it if need be
  UIViewController parentViewController() const {
    return objc::send<UIViewController, "parentViewController">(*this);
  }
  UIViewController presentedViewController() const {
    return objc::send<UIViewController, "presentedViewController">(*this);
  }
  void present(UIViewController controller, bool animated) const {
    objc::send<void, "presentViewController:animated:completion:">(*this, controller, animated,
                                                                   objc::Block<void()>(nullptr));
  }
};

struct UIWindow : UIView {
  using UIView::UIView;
  static constexpr double alertLevel = 2000.0;  // UIWindowLevelAlert
  static objc::Strong<UIWindow> make(CGRect frame) {
    return objc::adopt(
        objc::send<UIWindow, "initWithFrame:">(objc_alloc(objc::classNamed<"UIWindow">()), frame));
  }
  UIViewController rootViewController() const {
    return objc::send<UIViewController, "rootViewController">(*this);
  }
  void setRootViewController(UIViewController controller) const {
    objc::send<void, "setRootViewController:">(*this, controller);
  }
  void setWindowLevel(double level) const { objc::send<void, "setWindowLevel:">(*this, level); }
  void makeKeyAndVisible() const { objc::send<void, "makeKeyAndVisible">(*this); }
};

struct NSURL : objc::Object {
  using Object::Object;
  static NSURL URLWithString(NSString text) {  // nil for what is no URL
    return objc::send<NSURL, "URLWithString:">(objc::classNamed<"NSURL">(), text);
  }
};

struct UIApplication : NSObject {
  using NSObject::NSObject;
  static UIApplication sharedApplication() {
    return objc::send<UIApplication, "sharedApplication">(objc::classNamed<"UIApplication">());
  }
  UIWindow keyWindow() const { return objc::send<UIWindow, "keyWindow">(*this); }
  // Private: a UIInterfaceOrientation; 0 where the key is missing.
  long activeInterfaceOrientation() const {
    return objc::as<NSNumber>(safeValueForKey("_activeInterfaceOrientation"_ns)).integerValue();
  }
  void openURL(NSURL url) const {
    objc::send<void, "openURL:options:completionHandler:">(*this, url, NSDictionary::dictionary(),
                                                           objc::Block<void(bool)>(nullptr));
  }
};

struct UIPasteboard : objc::Object {
  using Object::Object;
  static UIPasteboard generalPasteboard() {
    return objc::send<UIPasteboard, "generalPasteboard">(objc::classNamed<"UIPasteboard">());
  }
  void setString(NSString text) const { objc::send<void, "setString:">(*this, text); }
};

struct UIAlertAction : objc::Object {
  using Object::Object;
  // The alert is gone when the handler runs.
  template <class Handler>
  static UIAlertAction make(NSString title, Handler handler) {
    constexpr long defaultStyle = 0;
    auto block = objc::block<void(UIAlertAction)>(
        [handler = std::move(handler)](UIAlertAction) { handler(); });
    return objc::send<UIAlertAction, "actionWithTitle:style:handler:">(
        objc::classNamed<"UIAlertAction">(), title, defaultStyle, block.get());
  }
};

struct UIAlertController : UIViewController {
  using UIViewController::UIViewController;
  static Class cls() { return objc::classNamed<"UIAlertController">(); }
  static UIAlertController make(NSString title, NSString message) {
    constexpr long alertStyle = 1;
    return objc::send<UIAlertController, "alertControllerWithTitle:message:preferredStyle:">(
        cls(), title, message, alertStyle);
  }
  void addAction(UIAlertAction action) const { objc::send<void, "addAction:">(*this, action); }
};
