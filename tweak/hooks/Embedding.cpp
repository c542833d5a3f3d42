#include "tweak/hooks/Embedding.h"

#include "tweak/engine/Dozewell2Manager.h"
#include "tweak/settings/Dozewell2StorageManager.h"
#include "tweak/support/HapticFeedbackHelper.h"
#include "tweak/support/Log.h"

bool shouldShowDozewellEmbeddedVCInsteadOfAirPlay;
bool shouldReplaceRoutingActionByDozewell;

namespace Embedding {
namespace {

constexpr double panelHeight = 250;  // points

Dozewell2Manager& engine() {
  return Dozewell2Manager::sharedInstance();
}

const void* address(objc::Object object) {
  return object.get();
}

}  // namespace

// The last controller loaded or shown is the one that the panel returns to.
void viewDidAppear(objc::Original<void(Controller, bool)> original, Controller self,
                   bool animated) {
  original(self, animated);
  engine().currentNowPlayingVC = objc::retain(self);
}

void viewDidLoad(objc::Original<void(Controller)> original, Controller self) {
  original(self);
  engine().currentNowPlayingVC = objc::retain(self);
}

void didSelectDozewellButton(Controller self, objc::Object sender) {
  (LogLine() << "-[<MRUNowPlayingViewController: " << address(self)
             << "> didSelectDozewellButton:" << sender << "]")
      .write();
  if (self.layout() != routingLayout) {
    objc::send<void, "dozewell_expandDozewell:">(self, true);
    return;
  }
  objc::send<void, "dismissCurrentView">(engine().dozewell2VC.get());
  objc::send<void, "dozewell_expandDozewell:">(self, false);
}

// The host itself changes its layout: it believes that its routing button was tapped.
void expandDozewell(Controller self, bool expand) {
  if (!expand && self.layout() != routingLayout) return;
  if (expand) objc::send<void, "dozewell_updateEmbeddedVCWithDozewellVC:">(self, true);
  shouldReplaceRoutingActionByDozewell = true;
  self.didSelectRoutingButton(nullptr);
  if (expand) engine().isShowingDozewellUI = true;
}

void didSelectRoutingButton(objc::Original<void(Controller, objc::Object)> original,
                            Controller self, objc::Object sender) {
  if (shouldReplaceRoutingActionByDozewell) {
    shouldReplaceRoutingActionByDozewell = false;
  } else {
    objc::send<void, "dozewell_updateEmbeddedVCWithDozewellVC:">(self, false);
  }
  original(self, sender);
}

void updateEmbeddedController(Controller self, bool useDozewell) {
  shouldShowDozewellEmbeddedVCInsteadOfAirPlay = useDozewell;
  const auto embedding = self.collapsedEmbeddingView();
  embedding.removeViewController();
  embedding.setEmbeddedViewController(useDozewell ? engine().dozewell2VC
                                                  : self.routingViewController());
  embedding.showViewController();
}

CGSize sizeThatFits(objc::Original<CGSize(MRUEmbeddingView, CGSize)> original,
                    MRUEmbeddingView self, CGSize size) {
  (LogLine() << "-[<MRUEmbeddingView: " << address(self) << "> sizeThatFits:{" << size.width << ", "
             << size.height << "}]")
      .write();
  if (shouldShowDozewellEmbeddedVCInsteadOfAirPlay) return {self.frame().size.width, panelHeight};
  return original(self, size);
}

void showViewController(objc::Original<void(MRUEmbeddingView)> original, MRUEmbeddingView self) {
  (LogLine() << "-[<MRUEmbeddingView: " << address(self) << "> showViewController]").write();
  original(self);
  if (!shouldShowDozewellEmbeddedVCInsteadOfAirPlay) return;
  const auto panel = engine().dozewell2VC.get();
  const UIView noTransition(nullptr);
  if (engine().isRunning()) {
    objc::send<void, "showCurrentTimerView:transitionView:slideAnimated:">(panel, true,
                                                                           noTransition, false);
  } else {
    objc::send<void, "showChooseSnoozeTimeView:transitionView:slideAnimated:">(panel, true,
                                                                               noTransition, false);
  }
}

void setShakeState(objc::Original<void(UIMotionEvent, int)> original, UIMotionEvent self,
                   int state) {
  constexpr int shaken = 0;
  constexpr long error = 2;  // the notification haptic
  original(self, state);
  if (!Dozewell2StorageManager::sharedInstance().shakeToRestartTimerEnabled || state != shaken ||
      !engine().isRunning())
    return;
  engine().restartTimerWithLastChosenValue();
  HapticFeedbackHelper::sendImpactWithNotificationType(error);
}

}  // namespace Embedding
