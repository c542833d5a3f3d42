// The large label of what is left, in the panel's page of the running timer.
#pragma once

#include "objc/Registration.h"
#include "platform/UIKit.h"

// The layout makes it. Every digit is as wide as the others, and a screen reader is told what is
// left in words.
struct Dozewell2TimeLeftLabel : UILabel {
  using UILabel::UILabel;

  static objc::Registration registerClass();
};
