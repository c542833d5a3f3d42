#include "tweak/hooks/module/EmbeddingModule.h"

#include "tweak/engine/Dozewell2Manager.h"
#include "tweak/hooks/Embedding.h"
#include "tweak/panel/Dozewell2ViewController.h"
#include "tweak/support/Log.h"

namespace EmbeddingModule {
namespace {

constexpr double panelHeight = 250;  // points

}  // namespace

Class buttonSuperclass() {
  return MRUNowPlayingRoutingButton::cls();
}

void embed(DozewellNowPlayingController controller, bool panel) {
  const auto embedding = controller.collapsedEmbeddingView();
  embedding.removeViewController();
  embedding.setEmbeddedViewController(panel ? Dozewell2Manager::sharedInstance().dozewell2VC()
                                            : controller.routingViewController());
  embedding.showViewController();
}

// The host itself changes its layout: it believes that its routing button was tapped.
void toggleRoutingLayout(DozewellNowPlayingController controller) {
  controller.didSelectRoutingButton(nullptr);
}

CGSize sizeThatFits(objc::Original<CGSize(MRUEmbeddingView, CGSize)> original,
                    MRUEmbeddingView self, CGSize size) {
  logCall("MRUEmbeddingView", self, "sizeThatFits:{", size.width, ", ", size.height, "}");
  // The host is not asked: the panel is as high as it is.
  if (shouldShowDozewellEmbeddedVCInsteadOfAirPlay) return {self.frame().size.width, panelHeight};
  return original(self, size);
}

void showViewController(objc::Original<void(MRUEmbeddingView)> original, MRUEmbeddingView self) {
  logCall("MRUEmbeddingView", self, "showViewController");
  original(self);
  if (!shouldShowDozewellEmbeddedVCInsteadOfAirPlay) return;
  const auto panel = Dozewell2ViewController::preloaded();
  if (Dozewell2Manager::sharedInstance().isRunning()) {
    panel.showCurrentTimerView_transitionView_slideAnimated(true, nullptr, false);
  } else {
    panel.showChooseSnoozeTimeView_transitionView_slideAnimated(true, nullptr, false);
  }
}

}  // namespace EmbeddingModule
