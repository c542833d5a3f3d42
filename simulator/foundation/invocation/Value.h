// A value as Objective-C passes it: its type and its bytes.
#pragma once

#include <array>
#include <cstddef>
#include <cstring>
#include <memory>
#include <optional>
#include <string>

#include "objc/Ownership.h"
#include "simulator/foundation/TypeEncoding.h"

namespace sim {

// Objects inside are kept strongly.
class Value {
 public:
  Value() = default;                  // of type void
  explicit Value(TypeEncoding type);  // all bytes zero; std::invalid_argument when it is too large

  static Value ofObject(objc::Object object);               // shares
  static Value ofOwned(objc::Strong<objc::Object> object);  // takes over
  static Value ofCString(std::string text);

  const TypeEncoding& type() const { return type_; }
  std::byte* bytes() { return bytes_.data(); }
  const std::byte* bytes() const { return bytes_.data(); }
  template <class T>
  T as() const {
    T value;
    std::memcpy(&value, bytes_.data(), sizeof value);
    return value;
  }

  // nil unless the value is an object or a class.
  objc::Object object() const;
  // After the bytes were written from outside.
  void keepObject() { kept_ = objc::retain(object()); }

  // Numbers and NSNumber objects; BOOL is none. long double holds every 64-bit integer exactly.
  std::optional<long double> number() const;
  // BOOL and NSNumber objects made from it.
  std::optional<bool> boolean() const;

  // The member of a structure at that place.
  Value member(std::size_t index) const;

 private:
  TypeEncoding type_;
  alignas(16) std::array<std::byte, 128> bytes_{};  // CATransform3D is the largest
  objc::Strong<objc::Object> kept_;
  std::shared_ptr<std::string> text_;  // what a C string points at
};

// False when the number does not fit the type.
bool storeNumber(const TypeEncoding& type, long double number, std::byte* place);

// As results are printed: YES, nil, shortest exact numbers, "strings", {{x, y}, {w, h}}.
std::string notation(const Value& value);

}  // namespace sim
