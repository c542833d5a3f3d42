// The media module up to 15: the player has its routing button in the header, and below the header
// an embedding view, as high as it answers, for the controller of the routes.
#pragma once

#include "objc/Hook.h"
#include "tweak/engine/DozewellNowPlayingController.h"
#include "tweak/hooks/NowPlayingHeader.h"

namespace EmbeddingModule {

// See MediaModule.h.
Class buttonSuperclass();
void placeButton(DozewellNowPlayingHeader header);
void embed(DozewellNowPlayingController controller, bool panel);
void toggleRoutingLayout(DozewellNowPlayingController controller);

// MRUEmbeddingView
CGSize sizeThatFits(objc::Original<CGSize(MRUEmbeddingView, CGSize)> original,
                    MRUEmbeddingView self, CGSize size);
void showViewController(objc::Original<void(MRUEmbeddingView)> original, MRUEmbeddingView self);

}  // namespace EmbeddingModule
