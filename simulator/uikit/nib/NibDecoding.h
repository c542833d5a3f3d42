// One pass over a compiled layout: makes its objects and knows which of them is being decoded.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "objc/Ownership.h"
#include "simulator/uikit/nib/UINibDecoder.h"
#include "tools/nibc/nib/Archive.h"

namespace sim {

class NibDecoding {
 public:
  // What lies outside the layout: its owner, and objects by the identifiers of their proxies.
  struct Surroundings {
    objc::Object owner;
    objc::Object externals;  // NSDictionary or nil
    objc::Object bundle;     // where images are looked for
  };

  NibDecoding(const nib::Archive& archive, const Surroundings& surroundings);
  ~NibDecoding();
  NibDecoding(const NibDecoding&) = delete;
  NibDecoding& operator=(const NibDecoding&) = delete;

  const Surroundings& surroundings() const { return surroundings_; }

  // Kept alive by this. Made when it is first asked for; nil for a collection with a nil element.
  // Raises when its class is absent, as the platform does.
  objc::Object object(std::uint32_t index);

  // The values of an object, without decoding it. nullptr when there is no such key.
  const nib::Value* value(std::uint32_t object, const std::string& key) const;
  // Its class in the file.
  const std::string& className(std::uint32_t object) const;
  // The objects that an array in the file refers to, without decoding them.
  std::vector<std::uint32_t> elements(std::uint32_t array) const;
  // What a key refers to; nothing unless it refers to an object.
  std::optional<std::uint32_t> reference(std::uint32_t object, const std::string& key) const;
  // The text of an NSString that a key refers to; empty when there is none.
  std::string text(std::uint32_t object, const std::string& key) const;

  // For the decoder: a value of the object that is being decoded. The search goes on from the last
  // one that was found, so that a repeated key gives its values in turn.
  const nib::Value* next(const std::string& key);

 private:
  struct Frame {
    std::uint32_t object;
    std::uint32_t nextValue;
  };

  objc::Strong<objc::Object> make(std::uint32_t index);
  objc::Strong<objc::Object> makeFrom(std::uint32_t index, Class cls);
  Class classFor(std::uint32_t index);
  Class swappedClass(std::uint32_t index);

  const nib::Archive& archive_;
  Surroundings surroundings_;
  std::vector<std::optional<objc::Strong<objc::Object>>> objects_;
  std::vector<Frame> frames_;
  objc::Strong<objc::Object> decoder_;
};

}  // namespace sim
