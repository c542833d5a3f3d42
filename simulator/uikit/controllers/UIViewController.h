// View controllers: a view that is loaded when it is first asked for, and controllers below.
#pragma once

#include <vector>

#include "objc/Block.h"
#include "objc/Class.h"
#include "simulator/coregraphics/Geometry.h"

namespace sim {

struct UIViewController : objc::Implementation<UIViewController> {
  objc::Strong<objc::Object> nibName;    // NSString; nil: none
  objc::Strong<objc::Object> nibBundle;  // NSBundle; nil: none
  objc::Strong<objc::Object> title;      // NSString
  objc::Strong<objc::Object> loadedView;
  std::vector<objc::Strong<objc::Object>> children;
  objc::Object parent;  // not owned: it owns this controller and clears it
  objc::Strong<objc::Object> presented;
  objc::Object presenting;            // not owned: it owns this controller and clears it
  objc::Strong<objc::Object> window;  // kept while presented in it, before iOS 13
  long modalPresentationStyle = -2;   // automatic
  CGSize preferredContentSize;        // what containers may give its view; zero: anything

  ~UIViewController();

  objc::Object init();
  objc::Object initWithNibName_bundle(objc::Object name, objc::Object bundle);
  objc::Object view();  // loads it if need be
  void setView(objc::Object view);
  bool isViewLoaded() const { return bool(loadedView); }
  objc::Object viewIfLoaded() const { return loadedView; }
  void loadView();

  void addChild(objc::Object child);
  void removeFromParent();
  objc::Object childControllers() const;

  // Refused, with the platform's words in the log, when the controller's view is in no window or
  // it presents another already.
  void present(objc::Object controller, bool animated, objc::Block<void()> completion);
  // How its view is seen coming when it is presented: from below. It is in its place already.
  void animateIn();
  // What it presents; when it presents nothing, itself.
  void dismiss(bool animated, objc::Block<void()> completion);

  static void registerClass();
};

}  // namespace sim
