#include "simulator/foundation/NSData.h"

#include <functional>

#include "simulator/foundation/AtomicFile.h"
#include "simulator/foundation/Kind.h"
#include "simulator/foundation/Values.h"
#include "simulator/machine/FileContent.h"
#include "simulator/machine/Phone.h"
#include "simulator/standin/StandIn.h"

namespace sim {
namespace {

using objc::Object;

const std::string& content(Object self) {
  return NSData::of(self).content;
}

Object makeEmpty() {
  return dataOf({});
}

Object makeWithBytes(const void* bytes, unsigned long length) {
  return dataOf(std::string(static_cast<const char*>(bytes), length));
}

Object makeWithContentsOfFile(Object path) {
  if (!path) return nullptr;
  auto content = fileContent(Phone::current().file(text(path)));
  return content ? dataOf(*std::move(content)) : nullptr;
}

Object initWithBytes(Object self, const void* bytes, unsigned long length) {
  NSData::of(self).content.assign(static_cast<const char*>(bytes), length);
  return self;
}

const void* bytes(Object self) {
  return content(self).empty() ? nullptr : content(self).data();
}
unsigned long length(Object self) {
  return content(self).size();
}

bool writeToFile(Object self, Object path, bool) {
  std::string problem;
  return writeFileAtomically(Phone::current().file(text(path)), content(self), &problem);
}

bool isEqual(Object self, Object other) {
  const NSData* state = stateOf<NSData>(other);
  return state != nullptr && state->content == content(self);
}
unsigned long hash(Object self) {
  return std::hash<std::string>()(content(self));
}

// "{length = 3, bytes = 0x616263}"; long data shows its first 16 and last 8 bytes.
Object describe(Object self) {
  constexpr const char* digits = "0123456789abcdef";
  const std::string& whole = content(self);
  std::string hex = "0x";
  for (std::size_t i = 0; i < whole.size(); ++i) {
    const bool cut = whole.size() > 24;
    if (cut && i == 16) hex += " ... ";
    if (cut && i >= 16 && i < whole.size() - 8) continue;
    if (cut && i > 0 && i < 16 && i % 4 == 0) hex += ' ';
    if (cut && i > whole.size() - 8 && (i - (whole.size() - 8)) % 4 == 0) hex += ' ';
    hex += digits[(whole[i] >> 4) & 0xf];
    hex += digits[whole[i] & 0xf];
  }
  return string("{length = " + std::to_string(whole.size()) + ", bytes = " + hex + '}');
}

}  // namespace

Object dataOf(std::string content) {
  objc::Strong<Object> made = NSData::make();
  NSData::of(made.get()).content = std::move(content);
  return autorelease(std::move(made));
}

void NSData::registerClass() {
  StandIn<NSData>("Foundation", "NSData", "NSObject")
      .classMethod<"data", &makeEmpty>()
      .classMethod<"dataWithBytes:length:", &makeWithBytes>()
      .classMethod<"dataWithContentsOfFile:", &makeWithContentsOfFile>()
      .method<"initWithBytes:length:", &initWithBytes>()
      .method<"bytes", &bytes>()
      .method<"length", &length>()
      .partial<"writeToFile:atomically:", &writeToFile>("always atomic")
      .method<"isEqual:", &isEqual>()
      .method<"isEqualToData:", &isEqual>()
      .method<"hash", &hash>()
      .method<"description", &describe>()
      .method<"copyWithZone:", &shareAsCopy>()
      .finish();
}

}  // namespace sim
