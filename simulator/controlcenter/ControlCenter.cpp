#include "simulator/controlcenter/ControlCenter.h"

#include <map>
#include <utility>

#include "objc/Block.h"
#include "objc/Message.h"
#include "simulator/controlcenter/CCUICAPackageDescription.h"
#include "simulator/controlcenter/CCUICAPackageView.h"
#include "simulator/controlcenter/CCUIContentModuleContainerViewController.h"
#include "simulator/controlcenter/CCUIContinuousSliderView.h"
#include "simulator/controlcenter/CCUIModularControlCenterOverlayViewController.h"
#include "simulator/controlcenter/CCUIRoundButton.h"
#include "simulator/coversheet/LockScreen.h"
#include "simulator/foundation/Values.h"
#include "simulator/machine/Phone.h"
#include "simulator/standin/Registration.h"
#include "simulator/uikit/animation/Animation.h"
#include "simulator/uikit/application/PreRender.h"
#include "simulator/uikit/application/UIWindow.h"
#include "simulator/uikit/views/ViewLayout.h"

namespace sim {
namespace {

using objc::Object;

constexpr double windowLevel = 1090;  // above the lock screen, below alerts
constexpr double backdropBlur = 20;   // points

struct ControlCenter {
  Object window;                             // UIWindow; owned, nil while Control Center is closed
  objc::Weak<Object> keyBefore;              // UIWindow; the key window that it took the place of
  std::map<std::string, Object> containers;  // by module; owned, and never given up
};

ControlCenter& controlCenter() {
  return Phone::current().state<ControlCenter>();
}

}  // namespace

void registerControlCenter() {
  CCUICAPackageDescription::registerClass();
  CCUICAPackageView::registerClass();
  CCUIContentModuleContainerViewController::registerClass();
  CCUIRoundButton::registerClass();
  CCUIContinuousSliderView::registerClass();
  CCUIModularControlCenterOverlayViewController::registerClass();
  LockScreen::current().onLock(closeControlCenter);
  addPreRenderHook([] {
    if (const Object overlay = openedControlCenter())
      refreshTiles(CCUIModularControlCenterOverlayViewController::of(overlay).controls);
  });
}

void openControlCenter() {
  const Class overlayClass = CCUIModularControlCenterOverlayViewController::cls();
  Object& shown = controlCenter().window;
  if (shown || overlayClass == nullptr) return;
  const auto overlay = objc::adopt(Object(objc_alloc_init(overlayClass)));
  shown = objc::send<Object, "new">(objc_getClass("UIWindow"));
  objc::send<void, "setWindowLevel:">(shown, windowLevel);
  objc::send<void, "_setBackdropBlur:">(objc::send<Object, "layer">(shown), backdropBlur);
  objc::send<void, "setRootViewController:">(shown, overlay.get());
  // The key window while it is open: alerts that are shown over all else come over it.
  controlCenter().keyBefore = objc::weak(UIWindow::keyWindow());
  objc::send<void, "makeKeyAndVisible">(shown);
  // The gesture takes longer than what modules animate as they are first laid out.
  if (!shown) return;
  const auto layOut = objc::block<void()>([] { layoutIfNeeded(controlCenter().window); });
  performWithoutAnimation(layOut.get());
}

void closeControlCenter() {
  Object& shown = controlCenter().window;
  if (!shown) return;
  const auto overlay = objc::retain(openedControlCenter());
  CCUIModularControlCenterOverlayViewController::of(overlay.get()).collapseModules(false);
  const auto window = objc::adopt(std::exchange(shown, nullptr));
  objc::send<void, "setRootViewController:">(window.get(), nullptr);
  objc::send<void, "setHidden:">(window.get(), true);
  objc::send<void, "makeKeyWindow">(controlCenter().keyBefore.load().get());
}

Object openedControlCenter() {
  return objc::send<Object, "rootViewController">(controlCenter().window);
}

Object moduleContainer(const std::string& identifier) {
  if (const Object overlay = openedControlCenter())
    if (const Object found =
            CCUIModularControlCenterOverlayViewController::of(overlay).container(identifier))
      return found;
  Class cls = CCUIContentModuleContainerViewController::cls();
  if (cls == nullptr) return nullptr;
  Object& container = controlCenter().containers[identifier];
  if (!container)
    container = objc::send<Object, "initWithModuleIdentifier:contentModule:">(
        objc_alloc(cls), string(identifier), nullptr);
  return container;
}

}  // namespace sim
