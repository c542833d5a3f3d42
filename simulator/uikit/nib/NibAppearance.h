// Colours, fonts and images of a layout.
#pragma once

#include "objc/Ownership.h"

namespace sim {

class NibDecoding;

objc::Strong<objc::Object> nibColor(NibDecoding& decoding, std::uint32_t index);
objc::Strong<objc::Object> nibFont(NibDecoding& decoding, std::uint32_t index);
// nil, and a line in the journal, when the bundle has no such image.
objc::Strong<objc::Object> nibImage(NibDecoding& decoding, std::uint32_t index);

}  // namespace sim
