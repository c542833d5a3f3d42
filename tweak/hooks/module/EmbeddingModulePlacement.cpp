// Where the timer button stands, and how it looks, in each layout of the module.
#include "tweak/engine/Dozewell2Manager.h"
#include "tweak/hooks/DozewellButton.h"
#include "tweak/hooks/Embedding.h"
#include "tweak/hooks/module/EmbeddingModule.h"
#include "tweak/settings/Dozewell2StorageManager.h"

namespace EmbeddingModule {
namespace {

using Button = DozewellButton;
using State = DozewellButton::State;

bool isRunning() {
  return Dozewell2Manager::sharedInstance().isRunning();
}

void showOrdinaryState(Button button) {
  button.updateForNewState(isRunning() ? State::running : State::idle);
}

CGRect moved(CGRect frame, double x, double y) {
  frame.origin.x += x;
  frame.origin.y += y;
  return frame;
}

// In interfaces that run from the right the host turns its header round, and distances count from
// the other edge. Asked of the routing button, too, which would tell a host that does not.
bool isTurnedRound(UIView header, UIView routing) {
  return header.isRightToLeft() && routing.frame().origin.x < header.bounds().size.width / 2;
}

// At the header's left edge, opposite the routing button. Hidden by the setting, it still gets a
// place and a look (button-hidden-in-the-small-module).
CGRect placeInMinimizedLayout(UIView header, UIView routing, Button button) {
  auto frame = routing.frame();
  if (Dozewell2StorageManager::sharedInstance().showDozewellButtonInCCMinimizedMediaPlayer()) {
    const bool turned = isTurnedRound(header, routing);
    frame.origin.x = turned ? header.bounds().size.width - frame.size.width : 0;
  } else {
    button.setHidden(true);
  }
  showOrdinaryState(button);
  return frame;
}

// Beside the routing button, or below it where the text takes the width. Each pass moves the
// routing button up from where the last one left it, as the extension always has: while a long
// title is shown, the two climb with every pass until the routing layout puts them back. Moved from
// its own place instead, they would stand still (button-moves-up-by-passes).
CGRect placeInExpandedLayout(MRUNowPlayingHeaderView header, UIView routing, Button button) {
  constexpr double tallLabels = 40, up = 18, below = 33, beside = 40;  // points
  CGRect frame;
  if (header.labelView().frame().size.height > tallLabels) {
    // The frame is read after the move, which it contains.
    routing.setTransform(routing.transform().translated(0, -up));
    frame = moved(routing.frame(), 0, below);
  } else {
    frame = moved(routing.frame(), isTurnedRound(header, routing) ? beside : -beside, 0);
  }
  showOrdinaryState(button);
  return frame;
}

// With the panel embedded the timer button takes the routing button's place.
CGRect placeInRoutingLayout(UIView routing, Button button) {
  routing.setTransform(CGAffineTransform::identity());
  const auto frame = routing.frame();
  if (shouldShowDozewellEmbeddedVCInsteadOfAirPlay) {
    routing.setHidden(true);
    button.updateForNewState(isRunning() ? State::runningInRoutingPlace
                                         : State::idleInRoutingPlace);
  } else {
    button.setHidden(true);
  }
  return frame;
}

CGRect placeElsewhere(UIView routing, Button button) {
  button.setHidden(true);
  showOrdinaryState(button);
  return routing.frame();
}

CGRect place(MRUNowPlayingHeaderView header, UIView routing, Button button) {
  switch (header.layout()) {
    case minimizedLayout:
      return placeInMinimizedLayout(header, routing, button);
    case routingLayout:
      return placeInRoutingLayout(routing, button);
    case expandedLayout:
      return placeInExpandedLayout(header, routing, button);
    default:
      return placeElsewhere(routing, button);
  }
}

}  // namespace

void placeButton(DozewellNowPlayingHeader header) {
  const auto routing = header.routingButton();
  const auto button = header.dozewellButton();
  // Each layout hides what it has no place for.
  routing.setHidden(false);
  button.setHidden(false);
  button.setFrame(place(header, routing, button));
}

}  // namespace EmbeddingModule
