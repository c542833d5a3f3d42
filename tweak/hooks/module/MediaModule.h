// What of the host's media module depends on how that module is built, which differs between
// versions of the system. The rest of the extension goes through these functions alone; each shape
// has a file of its own behind them.
#pragma once

#include "tweak/engine/DozewellNowPlayingController.h"
#include "tweak/hooks/NowPlayingHeader.h"

// Main thread.
namespace MediaModule {

enum class Shape {
  unknown,    // 16 and later: nothing is put into the module
  embedding,  // up to 15: the routes lie in an embedding view below the header
};
// Told by the classes that exist when it is first asked, as the extension loads.
Shape shape();

// Of the timer button; nil where it is missing, and then there is no button.
Class buttonSuperclass();
// Places the timer button and the routing button, and gives them their look, in the header's
// present layout.
void placeButton(DozewellNowPlayingHeader header);
// Puts the panel where the host shows its routes, or the routes back, and shows it.
void embed(DozewellNowPlayingController controller, bool panel);
// To the routing layout and back.
void toggleRoutingLayout(DozewellNowPlayingController controller);

}  // namespace MediaModule
