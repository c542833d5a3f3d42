// UIKit's views and their layers.
#pragma once

#include "platform/uikit/Appearance.h"
#include "platform/uikit/Geometry.h"

struct CALayer : objc::Object {
  using Object::Object;
  NSArray sublayers() const { return objc::send<NSArray, "sublayers">(*this); }  // nil for none
  void setCornerRadius(double radius) const { objc::send<void, "setCornerRadius:">(*this, radius); }
};

struct UIView : NSObject {
  using NSObject::NSObject;

  CGRect frame() const { return objc::send<CGRect, "frame">(*this); }
  void setFrame(CGRect frame) const { objc::send<void, "setFrame:">(*this, frame); }
  CGRect bounds() const { return objc::send<CGRect, "bounds">(*this); }
  CGAffineTransform transform() const { return objc::send<CGAffineTransform, "transform">(*this); }
  void setTransform(CGAffineTransform transform) const {
    objc::send<void, "setTransform:">(*this, transform);
  }
  bool isHidden() const { return objc::send<bool, "isHidden">(*this); }
  void setHidden(bool hidden) const { objc::send<void, "setHidden:">(*this, hidden); }
  void setAlpha(double alpha) const { objc::send<void, "setAlpha:">(*this, alpha); }
  void setBackgroundColor(UIColor color) const {
    objc::send<void, "setBackgroundColor:">(*this, color);
  }
  void setTintColor(UIColor color) const { objc::send<void, "setTintColor:">(*this, color); }
  void setAutoresizingMask(unsigned long mask) const {
    objc::send<void, "setAutoresizingMask:">(*this, mask);
  }
  void setSemanticContentAttribute(long attribute) const {
    objc::send<void, "setSemanticContentAttribute:">(*this, attribute);
  }
  void setNeedsLayout() const { objc::send<void, "setNeedsLayout">(*this); }
  bool isRightToLeft() const {
    return objc::send<long, "effectiveUserInterfaceLayoutDirection">(*this) == 1;
  }
  // Of UIAccessibilityTraits.
  static constexpr unsigned long traitStaticText = 1 << 6, traitUpdatesFrequently = 1 << 9;
  // What a screen reader says of the view in place of its own words; nil gives those back.
  void setAccessibilityLabel(NSString label) const {
    objc::send<void, "setAccessibilityLabel:">(*this, label);
  }
  // What it says after the label.
  NSString accessibilityValue() const { return objc::send<NSString, "accessibilityValue">(*this); }
  void setAccessibilityValue(NSString value) const {
    objc::send<void, "setAccessibilityValue:">(*this, value);
  }
  // In place of those of the view's class.
  void setAccessibilityTraits(unsigned long traits) const {
    objc::send<void, "setAccessibilityTraits:">(*this, traits);
  }
  // Whether a screen reader stops at the view.
  void setIsAccessibilityElement(bool is) const {
    objc::send<void, "setIsAccessibilityElement:">(*this, is);
  }
  CALayer layer() const { return objc::send<CALayer, "layer">(*this); }

  UIView superview() const { return objc::send<UIView, "superview">(*this); }
  void addSubview(UIView view) const { objc::send<void, "addSubview:">(*this, view); }
  void removeFromSuperview() const { objc::send<void, "removeFromSuperview">(*this); }
  void bringSubviewToFront(UIView view) const {
    objc::send<void, "bringSubviewToFront:">(*this, view);
  }
  void layoutSubviews() const { objc::send<void, "layoutSubviews">(*this); }
};

struct NSValue : objc::Object {
  using Object::Object;
  static NSValue valueWithCGRect(CGRect rectangle) {
    return objc::send<NSValue, "valueWithCGRect:">(objc::classNamed<"NSValue">(), rectangle);
  }
  CGRect CGRectValue() const { return objc::send<CGRect, "CGRectValue">(*this); }
};

struct UIImageView : UIView {
  using UIView::UIView;
  void setImage(UIImage image) const { objc::send<void, "setImage:">(*this, image); }
};

struct UILabel : UIView {
  using UIView::UIView;
  enum class Alignment : long { left = 0, center = 1, right = 2 };
  static objc::Strong<UILabel> make(CGRect frame) {
    return objc::adopt(
        objc::send<UILabel, "initWithFrame:">(objc_alloc(objc::classNamed<"UILabel">()), frame));
  }
  NSString text() const { return objc::send<NSString, "text">(*this); }
  void setText(NSString text) const { objc::send<void, "setText:">(*this, text); }
  void setTextColor(UIColor color) const { objc::send<void, "setTextColor:">(*this, color); }
  UIFont font() const { return objc::send<UIFont, "font">(*this); }
  void setFont(UIFont font) const { objc::send<void, "setFont:">(*this, font); }
  void setTextAlignment(Alignment alignment) const {
    objc::send<void, "setTextAlignment:">(*this, alignment);
  }
};

struct NSLayoutConstraint : objc::Object {
  using Object::Object;
  void setConstant(double points) const { objc::send<void, "setConstant:">(*this, points); }
  void setPriority(float priority) const { objc::send<void, "setPriority:">(*this, priority); }
};
