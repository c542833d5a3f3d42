// Windows: roots of view trees, which may be on the screen.
#pragma once

#include <vector>

#include "objc/Class.h"
#include "simulator/coregraphics/Geometry.h"

namespace sim {

struct UIWindow : objc::Implementation<UIWindow> {
  objc::Strong<objc::Object> rootViewController;
  double windowLevel = 0;      // 0 normal, 2000 alerts
  bool isOfTheSystem = false;  // as the status bar's: drawn, but in no list of windows
  unsigned long shownAs = 0;   // counts up as windows are shown: later ones lie above

  UIWindow();
  ~UIWindow();
  UIWindow(const UIWindow&) = delete;
  UIWindow& operator=(const UIWindow&) = delete;

  objc::Object initWithFrame(CGRect frame);
  void setRootViewController(objc::Object controller);
  void setHidden(bool hidden);
  void makeKeyWindow();
  void makeKeyAndVisible();
  void layoutSubviews();

  // Those on the screen, from the lowest to the uppermost.
  static std::vector<objc::Strong<objc::Object>> visibleWindows();
  // Those of them that are the application's own.
  static std::vector<objc::Strong<objc::Object>> applicationWindows();
  static objc::Object keyWindow();  // nil without one

  static void registerClass();

 private:
  void showRoot();
};

}  // namespace sim
