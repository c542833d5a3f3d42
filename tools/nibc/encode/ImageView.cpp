#include "tools/nibc/encode/Image.h"
#include "tools/nibc/encode/ViewClass.h"

namespace xib {

void encodeImageView(Element& imageView, nib::Node& node, Layout& layout) {
  encodeImage(imageView, "image", node, "UIImage", layout);
}

}  // namespace xib
