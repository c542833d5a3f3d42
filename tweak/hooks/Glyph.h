// The moon.
#pragma once

#include "platform/ControlCenterUIKit.h"

extern "C" {

// A mutable array of a layer and everything below it, each before its sublayers; empty for nil.
__attribute__((visibility("default"))) id allSublayersFromLayer(id layer);

// A new package view of the moon, `size` points wide and high. nil parts of the host give nil.
__attribute__((visibility("default"))) id getDndCAPackageView(double size);
}
