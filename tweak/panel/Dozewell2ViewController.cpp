#include "tweak/panel/Dozewell2ViewController.h"

#include "tweak/engine/Dozewell2Manager.h"

void Dozewell2ViewController::preloadViewController() {
  Dozewell2Manager::sharedInstance().dozewell2VC = make<UIViewController>();
}

void Dozewell2ViewController::dismissDozewell(UIViewController panel) {
  objc::send<void, "dismissDozewell">(panel);
}

void Dozewell2ViewController::dismissDozewell() {}

Class Dozewell2ViewController::registerClass() {
  using Panel = Dozewell2ViewController;
  constexpr void (Panel::*dismiss)() = &Panel::dismissDozewell;
  return objc::ClassBuilder<Panel>("Dozewell2ViewController", "UIViewController")
      .classMethod<"preloadViewController", &Panel::preloadViewController>()
      .method<"dismissDozewell", dismiss>()
      .finish();
}
