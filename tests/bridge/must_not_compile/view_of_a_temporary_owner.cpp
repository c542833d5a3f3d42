// expected: deleted
#include "platform/UIKit.h"

double run() {
  const UIView view = UILabel::make(rect(0, 0, 1, 1));
  return view.frame().origin.x;
}
