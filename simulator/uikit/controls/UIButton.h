// A button: a title, an image or both, which may differ from state to state.
#pragma once

#include <map>

#include "objc/Class.h"
#include "simulator/coregraphics/Geometry.h"

namespace sim {

// What is shown in each control state. A state for which nothing is set shows what the normal one
// does.
struct StateValues {
  std::map<unsigned long, objc::Strong<objc::Object>> values;

  void set(objc::Object value, unsigned long state);
  objc::Object exactly(unsigned long state) const;
  objc::Object shownIn(unsigned long state) const;
};

struct UIButton : objc::Implementation<UIButton> {
  static constexpr long custom = 0, system = 1;

  StateValues titles;                    // NSString
  StateValues images;                    // UIImage
  StateValues titleColors;               // UIColor
  objc::Strong<objc::Object> label;      // UILabel, made when it is first asked for
  objc::Strong<objc::Object> imageView;  // UIImageView, likewise
  long buttonType = custom;

  objc::Object titleLabel();
  objc::Object itsImageView();
  void setTitle(objc::Object title, unsigned long state);
  void setImage(objc::Object image, unsigned long state);
  void setTitleColor(objc::Object color, unsigned long state);
  objc::Object currentTitleColor() const;
  CGSize intrinsicContentSize() const;
  void layoutSubviews();
  // Label and image view after a change of state.
  void showState();

  static void registerClass();
};

}  // namespace sim
