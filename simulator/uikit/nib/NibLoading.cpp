#include "simulator/uikit/nib/NibLoading.h"

#include "simulator/uikit/nib/Decoding.h"
#include "simulator/uikit/nib/UINib.h"
#include "simulator/uikit/nib/UINibDecoder.h"

namespace sim {

void registerNibLoading() {
  UINibDecoder::registerClass();
  UINib::registerClass();
  addViewDecoding();
  addPlainViewDecoding();
  addControlDecoding();
  addConstraintDecoding();
}

}  // namespace sim
