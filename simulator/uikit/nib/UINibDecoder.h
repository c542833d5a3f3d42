// The coder that objects of a compiled layout are initialised with.
#pragma once

#include "objc/Class.h"

namespace sim {

class NibDecoding;

struct UINibDecoder : objc::Implementation<UINibDecoder> {
  NibDecoding* decoding;  // nullptr once the layout is loaded: then every key is absent

  static void registerClass();
};

}  // namespace sim
