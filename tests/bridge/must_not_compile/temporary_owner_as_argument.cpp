// expected: deleted
#include "platform/UIKit.h"

void run(UIView page) {
  page.addSubview(UILabel::make(rect(0, 0, 1, 1)));
}
