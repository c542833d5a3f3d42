#include "simulator/uikit/pickers/PickerStyle.h"

#include "objc/Message.h"
#include "simulator/uikit/resources/UIFont.h"
#include "simulator/uikit/views/UILabel.h"
#include "simulator/uikit/views/UIView.h"

namespace sim {

using objc::Object;

objc::Strong<Object> pickerLabel(Object text, const FontStyle& style, Object color) {
  if (UILabel::cls() == nullptr) return {};
  auto label = UILabel::make();
  objc::send<void, "setText:">(label.get(), text);
  objc::send<void, "setFont:">(label.get(), objc::send<Object, "systemFontOfSize:weight:">(
                                                UIFont::cls(), style.pointSize, style.weight));
  objc::send<void, "setTextColor:">(label.get(), color);
  objc::send<void, "sizeToFit">(label.get());
  return label;
}

objc::Strong<Object> pickerBand() {
  if (UIView::cls() == nullptr) return {};
  constexpr double radius = 8;  // points
  auto band = UIView::make();
  objc::send<void, "setUserInteractionEnabled:">(band.get(), false);
  objc::send<void, "setBackgroundColor:">(
      band.get(), objc::send<Object, "colorWithRed:green:blue:alpha:">(objc_getClass("UIColor"),
                                                                       0.463, 0.463, 0.502, 0.24));
  objc::send<void, "setCornerRadius:">(UIView::layerOf(band.get()), radius);
  return band;
}

CGRect pickerBandFrame(const CGRect& bounds, double rowHeight) {
  constexpr double inset = 9;  // points, left and right
  return {{bounds.origin.x + inset, bounds.origin.y + (bounds.size.height - rowHeight) / 2},
          {bounds.size.width - 2 * inset, rowHeight}};
}

}  // namespace sim
