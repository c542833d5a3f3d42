// expected: specialise objc::StructEncoding for this type
#include "objc/Message.h"

struct Range {
  unsigned long location, length;
};

Range run(objc::Object object) {
  return objc::send<Range, "range">(object);
}
