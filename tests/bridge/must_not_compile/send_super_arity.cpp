// expected: the selector has another number of colons than the message has arguments
#include "objc/Class.h"

struct Switch : objc::Implementation<Switch> {
  void setOn() { super<void, "setOn:">(); }
};

void run(Switch& toggle) {
  toggle.setOn();
}
