#include "simulator/uikit/nib/NibLoading.h"

#include "simulator/uikit/nib/Decoding.h"
#include "simulator/uikit/nib/UINib.h"
#include "simulator/uikit/nib/UINibDecoder.h"

namespace sim {

void registerNibLoading() {
  UINibDecoder::registerClass();
  UINib::registerClass();
  addViewDecoding();
  addLabelDecoding();
  addControlDecoding();
  addImageViewDecoding();
  addStackViewDecoding();
  addConstraintDecoding();
}

}  // namespace sim
