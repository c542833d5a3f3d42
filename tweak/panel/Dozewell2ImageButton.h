// A button made of an icon and a text, which dims while it is pressed or selected.
#pragma once

#include "objc/Class.h"
#include "platform/UIKit.h"

struct Dozewell2ImageButton : objc::Implementation<Dozewell2ImageButton> {
  // All from the layout.
  objc::Strong<UIView> contentView;
  objc::Weak<UIImageView> iconImage;
  objc::Weak<UILabel> textLabel;
  objc::Weak<NSLayoutConstraint> iconAspectRatioConstraint;  // in force while the icon is shown
  objc::Weak<NSLayoutConstraint> iconWidthConstraint;        // in force while it is hidden
  objc::Weak<NSLayoutConstraint> labelLeadingConstraint;     // from the icon to the text

  id initWithFrame(CGRect frame);
  id initWithCoder(objc::Object coder);
  id initWithImage_font(UIImage image, UIFont font);
  void customInit();
  void setIconHidden(bool hidden);
  void setHighlighted(bool highlighted);
  void setSelected(bool selected);
  void setTintColor(UIColor color);

  static Class registerClass();
};
