#include "tweak/hooks/module/MediaModule.h"

#include "tweak/hooks/module/EmbeddingModule.h"

namespace MediaModule {
namespace {

// One of them alone may be missing: that costs its feature and no more.
bool hasEmbedding() {
  return MRUNowPlayingRoutingButton::cls() != nullptr || MRUEmbeddingView::cls() != nullptr ||
         MRUNowPlayingView::hasCollapsedEmbeddingView();
}

bool isEmbedding() {
  return shape() == Shape::embedding;
}

}  // namespace

Shape shape() {
  static const Shape chosen = hasEmbedding() ? Shape::embedding : Shape::unknown;
  return chosen;
}

Class buttonSuperclass() {
  return isEmbedding() ? EmbeddingModule::buttonSuperclass() : nullptr;
}

void placeButton(DozewellNowPlayingHeader header) {
  if (isEmbedding()) EmbeddingModule::placeButton(header);
}

void embed(DozewellNowPlayingController controller, bool panel) {
  if (isEmbedding()) EmbeddingModule::embed(controller, panel);
}

void toggleRoutingLayout(DozewellNowPlayingController controller) {
  if (isEmbedding()) EmbeddingModule::toggleRoutingLayout(controller);
}

}  // namespace MediaModule
