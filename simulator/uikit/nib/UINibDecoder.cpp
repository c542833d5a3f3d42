#include "simulator/uikit/nib/UINibDecoder.h"

#include "simulator/coregraphics/Geometry.h"
#include "simulator/foundation/Values.h"
#include "simulator/standin/StandIn.h"
#include "simulator/uikit/nib/EdgeInsets.h"
#include "simulator/uikit/nib/NibDecoding.h"
#include "tools/nibc/nib/Geometry.h"

namespace sim {
namespace {

using objc::Object;

const nib::Value* find(Object self, Object key) {
  NibDecoding* decoding = UINibDecoder::of(self).decoding;
  return decoding == nullptr ? nullptr : decoding->next(text(key));
}

// The getters of one family read no other: an integer asked for as a float is 0.
template <class Number>
Number real(Object self, Object key) {
  const nib::Value* found = find(self, key);
  if (found == nullptr) return 0;
  if (const auto* value = std::get_if<float>(&found->content)) return Number(*value);
  const auto* value = std::get_if<double>(&found->content);
  return value == nullptr ? 0 : Number(*value);
}

template <class Number>
Number integer(Object self, Object key) {
  const nib::Value* found = find(self, key);
  if (found == nullptr) return 0;
  if (const auto* value = std::get_if<bool>(&found->content)) return Number(*value);
  const auto* value = std::get_if<nib::Integer>(&found->content);
  return value == nullptr ? 0 : Number(value->value);
}

Object object(Object self, Object key) {
  const nib::Value* found = find(self, key);
  const auto* value = found == nullptr ? nullptr : std::get_if<nib::Reference>(&found->content);
  return value == nullptr ? Object() : UINibDecoder::of(self).decoding->object(value->object);
}

// Exactly so many numbers, or zeroes.
std::vector<double> numbers(Object self, Object key, std::size_t count) {
  const nib::Value* found = find(self, key);
  const auto* data = found == nullptr ? nullptr : std::get_if<nib::Data>(&found->content);
  auto read = data == nullptr ? std::nullopt : nib::geometryNumbers(*data);
  return read && read->size() == count ? *read : std::vector<double>(count, 0);
}

CGPoint point(Object self, Object key) {
  const auto n = numbers(self, key, 2);
  return {n[0], n[1]};
}
CGSize size(Object self, Object key) {
  const auto n = numbers(self, key, 2);
  return {n[0], n[1]};
}
CGRect rect(Object self, Object key) {
  const auto n = numbers(self, key, 4);
  return {{n[0], n[1]}, {n[2], n[3]}};
}
UIEdgeInsets insets(Object self, Object key) {
  const auto n = numbers(self, key, 4);
  return {n[0], n[1], n[2], n[3]};
}
CGAffineTransform transform(Object self, Object key) {
  const auto n = numbers(self, key, 6);
  return {n[0], n[1], n[2], n[3], n[4], n[5]};
}

const std::uint8_t* bytes(Object self, Object key, unsigned long* length) {
  const nib::Value* found = find(self, key);
  const auto* data = found == nullptr ? nullptr : std::get_if<nib::Data>(&found->content);
  if (length != nullptr) *length = data == nullptr ? 0 : data->size();
  return data == nullptr ? nullptr : reinterpret_cast<const std::uint8_t*>(data->data());
}

bool contains(Object self, Object key) {
  return find(self, key) != nullptr;
}
bool yes(Object) {
  return true;
}

struct NSCoder : objc::Implementation<NSCoder> {};

}  // namespace

void UINibDecoder::registerClass() {
  StandIn<NSCoder>("Foundation", "NSCoder", "NSObject").finish();
  StandIn<UINibDecoder>("UIKit", "UINibDecoder", "NSCoder")
      .method<"allowsKeyedCoding", &yes>()
      .method<"containsValueForKey:", &contains>()
      .method<"decodeObjectForKey:", &object>()
      .method<"decodeBoolForKey:", &integer<bool>>()
      .method<"decodeIntForKey:", &integer<int>>()
      .method<"decodeInt32ForKey:", &integer<int>>()
      .method<"decodeInt64ForKey:", &integer<long>>()
      .method<"decodeIntegerForKey:", &integer<long>>()
      .method<"decodeFloatForKey:", &real<float>>()
      .method<"decodeDoubleForKey:", &real<double>>()
      .method<"decodeCGPointForKey:", &point>()
      .method<"decodeCGSizeForKey:", &size>()
      .method<"decodeCGRectForKey:", &rect>()
      .method<"decodeUIEdgeInsetsForKey:", &insets>()
      .method<"decodeCGAffineTransformForKey:", &transform>()
      .method<"decodeBytesForKey:returnedLength:", &bytes>()
      .finish();
}

}  // namespace sim
