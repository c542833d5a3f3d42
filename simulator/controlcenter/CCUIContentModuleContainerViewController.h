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
  // Expands nothing by itself.
  void setExpanded(bool expands) { expanded = expands; }
  // Later than the call, as after a press of the user's.
  void expandModule();
  void dismissExpandedModule(bool animated);
  // A tap beside its controls expands a module.
  void didTapModule(objc::Object sender);

  static void registerClass();

 private:
  // setExpanded: comes first, as a message; then the content hears of it and Control Center makes
  // room in one animation; last the content hears that it is over.
  void transition(bool expands, bool animated);
};

}  // namespace sim
