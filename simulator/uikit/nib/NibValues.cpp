#include "simulator/uikit/nib/NibValues.h"

#include "objc/Message.h"
#include "simulator/foundation/NSData.h"
#include "simulator/foundation/Values.h"
#include "simulator/uikit/nib/NibAppearance.h"
#include "simulator/uikit/nib/NibDecoding.h"

namespace sim {
namespace {

using objc::Object;
using objc::Strong;

std::string bytesOf(NibDecoding& decoding, std::uint32_t index) {
  const nib::Value* found = decoding.value(index, "NS.bytes");
  const auto* data = found == nullptr ? nullptr : std::get_if<nib::Data>(&found->content);
  return data == nullptr ? "" : *data;
}

Strong<Object> stringValue(NibDecoding& decoding, std::uint32_t index) {
  return objc::retain(string(bytesOf(decoding, index)));
}

Strong<Object> mutableCopy(Object object) {
  return objc::adopt(objc::send<Object, "mutableCopy">(object));
}

Strong<Object> mutableStringValue(NibDecoding& decoding, std::uint32_t index) {
  return mutableCopy(string(bytesOf(decoding, index)));
}

Strong<Object> dataValue(NibDecoding& decoding, std::uint32_t index) {
  return objc::retain(dataOf(bytesOf(decoding, index)));
}

Strong<Object> numberValue(NibDecoding& decoding, std::uint32_t index) {
  for (const char* key : {"NS.intval", "NS.dblval", "NS.BOOLval"}) {
    const nib::Value* found = decoding.value(index, key);
    if (found == nullptr) continue;
    if (const auto* value = std::get_if<nib::Integer>(&found->content))
      return objc::retain(number(long(value->value)));
    if (const auto* value = std::get_if<double>(&found->content))
      return objc::retain(number(*value));
    if (const auto* value = std::get_if<bool>(&found->content)) return objc::retain(number(*value));
  }
  return objc::retain(number(0L));
}

// Nothing when one of the elements is nil.
std::optional<std::vector<Object>> elementsOf(NibDecoding& decoding, std::uint32_t index) {
  std::vector<Object> elements;
  for (const std::uint32_t each : decoding.elements(index)) {
    elements.push_back(decoding.object(each));
    if (!elements.back()) return std::nullopt;
  }
  return elements;
}

Strong<Object> arrayValue(NibDecoding& decoding, std::uint32_t index) {
  const auto elements = elementsOf(decoding, index);
  return elements ? objc::retain(array(*elements)) : nullptr;
}

Strong<Object> mutableArrayValue(NibDecoding& decoding, std::uint32_t index) {
  return mutableCopy(arrayValue(decoding, index).get());
}

Strong<Object> setValue(NibDecoding& decoding, std::uint32_t index) {
  const Strong<Object> elements = arrayValue(decoding, index);
  if (!elements) return nullptr;
  return objc::retain(objc::send<Object, "setWithArray:">(objc_getClass("NSSet"), elements.get()));
}

Strong<Object> mutableSetValue(NibDecoding& decoding, std::uint32_t index) {
  return mutableCopy(setValue(decoding, index).get());
}

Strong<Object> dictionaryValue(NibDecoding& decoding, std::uint32_t index) {
  const auto elements = elementsOf(decoding, index);
  if (!elements) return nullptr;
  std::vector<std::pair<Object, Object>> entries;
  for (std::size_t i = 0; i + 1 < elements->size(); i += 2)
    entries.emplace_back((*elements)[i], (*elements)[i + 1]);
  return objc::retain(dictionary(entries));
}

Strong<Object> mutableDictionaryValue(NibDecoding& decoding, std::uint32_t index) {
  return mutableCopy(dictionaryValue(decoding, index).get());
}

Strong<Object> plainObject() {
  return objc::adopt(objc::send<Object, "new">(objc_getClass("NSObject")));
}

// Without an owner an object of no use stands in for it, as it does for the first responder, which
// changes all the time.
Strong<Object> proxyValue(NibDecoding& decoding, std::uint32_t index) {
  const std::string identifier = decoding.text(index, "UIProxiedObjectIdentifier");
  const auto& surroundings = decoding.surroundings();
  if (identifier == "IBFilesOwner")
    return surroundings.owner ? objc::retain(surroundings.owner) : plainObject();
  const Object external =
      objc::send<Object, "objectForKey:">(surroundings.externals, string(identifier));
  return external ? objc::retain(external) : plainObject();
}

using Maker = Strong<Object> (*)(NibDecoding&, std::uint32_t);

struct ValueClass {
  const char* name;
  Maker make;
};

constexpr ValueClass classes[] = {
    {"NSString", &stringValue},
    {"NSMutableString", &mutableStringValue},
    {"NSLocalizableString", &stringValue},
    {"NSNumber", &numberValue},
    {"NSData", &dataValue},
    {"NSArray", &arrayValue},
    {"NSMutableArray", &mutableArrayValue},
    {"NSSet", &setValue},
    {"NSMutableSet", &mutableSetValue},
    {"NSDictionary", &dictionaryValue},
    {"NSMutableDictionary", &mutableDictionaryValue},
    {"UIProxyObject", &proxyValue},
    {"UIColor", &nibColor},
    {"UIFont", &nibFont},
    {"UIImageNibPlaceholder", &nibImage},
};

const ValueClass* find(const std::string& name) {
  for (const ValueClass& each : classes)
    if (name == each.name) return &each;
  return nullptr;
}

}  // namespace

bool isNibValueClass(const std::string& name) {
  return find(name) != nullptr;
}

Strong<Object> nibValue(NibDecoding& decoding, std::uint32_t index) {
  return find(decoding.className(index))->make(decoding, index);
}

}  // namespace sim
