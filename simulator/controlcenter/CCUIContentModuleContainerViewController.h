// ControlCenterUI: the frame around one module, which grows when the user presses the module.
#pragma once

#include "objc/Class.h"

namespace sim {

struct CCUIContentModuleContainerViewController
    : objc::Implementation<CCUIContentModuleContainerViewController> {
  objc::Strong<objc::Object> moduleIdentifier;  // NSString
  objc::Strong<objc::Object> contentModule;     // gives the controller of what is shown; or nil
  bool expanded = false;

  objc::Object initWithModuleIdentifier_contentModule(objc::Object identifier, objc::Object module);
  objc::Object contentViewController() const;
  void loadView();
  void viewDidLoad();
  void viewWillLayoutSubviews();
  // The content hears of it first, then Control Center makes room.
  void setExpanded(bool expands);
  // A tap beside its controls expands a module.
  void didTapModule(objc::Object sender);

  static void registerClass();
};

}  // namespace sim
