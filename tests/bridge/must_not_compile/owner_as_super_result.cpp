// expected: owners do not cross the bridge
#include "objc/Class.h"

struct Copy : objc::Implementation<Copy> {
  objc::Strong<objc::Object> copy() { return super<objc::Strong<objc::Object>, "copy">(); }
};

auto run(Copy& copy) {
  return copy.copy();
}
