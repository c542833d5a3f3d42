#include "simulator/uikit/nib/NibDecoding.h"

#include "objc/Message.h"
#include "simulator/foundation/Exception.h"
#include "simulator/foundation/Values.h"
#include "simulator/machine/Phone.h"
#include "simulator/uikit/nib/NibValues.h"

namespace sim {
namespace {

using objc::Object;
using objc::Strong;

constexpr const char* elementKey = "UINibEncoderEmptyKey";
constexpr std::size_t deepestNesting = 500;  // keeps the recursion from the end of the stack

[[noreturn]] void invalid(const std::string& reason) {
  raiseException("NSInvalidUnarchiveOperationException", reason);
}

}  // namespace

NibDecoding::NibDecoding(const nib::Archive& archive, const Surroundings& surroundings)
    : archive_(archive), surroundings_(surroundings), objects_(archive.objects.size()) {
  decoder_ = UINibDecoder::make();
  if (!decoder_) invalid("there is no class UINibDecoder");
  UINibDecoder::of(decoder_.get()).decoding = this;
}

// Somebody may have kept the decoder.
NibDecoding::~NibDecoding() {
  UINibDecoder::of(decoder_.get()).decoding = nullptr;
}

const nib::Value* NibDecoding::value(std::uint32_t object, const std::string& key) const {
  const nib::Object& found = archive_.objects[object];
  for (std::uint32_t i = 0; i < found.valueCount; ++i) {
    const nib::Value& each = archive_.values[found.firstValue + i];
    if (archive_.keys[each.key] == key) return &each;
  }
  return nullptr;
}

const std::string& NibDecoding::className(std::uint32_t object) const {
  return archive_.classes[archive_.objects[object].cls].name;
}

std::vector<std::uint32_t> NibDecoding::elements(std::uint32_t array) const {
  std::vector<std::uint32_t> found;
  const nib::Object& object = archive_.objects[array];
  for (std::uint32_t i = 0; i < object.valueCount; ++i) {
    const nib::Value& each = archive_.values[object.firstValue + i];
    if (archive_.keys[each.key] != elementKey) continue;
    if (const auto* reference = std::get_if<nib::Reference>(&each.content))
      found.push_back(reference->object);
  }
  return found;
}

std::optional<std::uint32_t> NibDecoding::reference(std::uint32_t object,
                                                    const std::string& key) const {
  const nib::Value* found = value(object, key);
  if (found == nullptr) return std::nullopt;
  const auto* reference = std::get_if<nib::Reference>(&found->content);
  return reference == nullptr ? std::nullopt : std::optional(reference->object);
}

std::string NibDecoding::text(std::uint32_t object, const std::string& key) const {
  const auto string = reference(object, key);
  const nib::Value* bytes = string ? value(*string, "NS.bytes") : nullptr;
  const auto* data = bytes == nullptr ? nullptr : std::get_if<nib::Data>(&bytes->content);
  return data == nullptr ? "" : *data;
}

const nib::Value* NibDecoding::next(const std::string& key) {
  if (frames_.empty()) return nullptr;
  Frame& frame = frames_.back();
  const nib::Object& object = archive_.objects[frame.object];
  for (std::uint32_t i = 0; i < object.valueCount; ++i) {
    const std::uint32_t at = (frame.nextValue + i) % object.valueCount;
    const nib::Value& each = archive_.values[object.firstValue + at];
    if (archive_.keys[each.key] != key) continue;
    frame.nextValue = (at + 1) % object.valueCount;
    return &each;
  }
  return nullptr;
}

Object NibDecoding::object(std::uint32_t index) {
  if (objects_[index]) return objects_[index]->get();
  if (frames_.size() >= deepestNesting) invalid("the objects of a nib are nested too deeply");
  frames_.push_back({index, 0});
  Strong<Object> made = make(index);
  frames_.pop_back();
  objects_[index] = std::move(made);
  return objects_[index]->get();
}

Strong<Object> NibDecoding::make(std::uint32_t index) {
  if (isNibValueClass(className(index))) return nibValue(*this, index);
  return makeFrom(index, classFor(index));
}

// The object is known before it decodes itself, for what it contains may refer to it.
Strong<Object> NibDecoding::makeFrom(std::uint32_t index, Class cls) {
  const Strong<Object> allocated = objc::adopt(objc::send<Object, "alloc">(cls));
  objects_[index] = allocated;
  // The initialiser takes over one reference and gives one back.
  const Object begun = objc::retain(allocated.get()).detach();
  Strong<Object> made = objc::adopt(objc::send<Object, "initWithCoder:">(begun, decoder_.get()));
  if (made.get() != allocated.get())
    invalid("-[" + std::string(class_getName(cls)) +
            " initWithCoder:] gave another object than the one that it was sent to");
  return made;
}

Class NibDecoding::classFor(std::uint32_t index) {
  if (className(index) == "UIClassSwapper") return swappedClass(index);
  const nib::Class& cls = archive_.classes[archive_.objects[index].cls];
  if (Class found = objc_getClass(cls.name.c_str())) return found;
  for (const std::uint32_t each : cls.fallbacks)
    if (Class found = objc_getClass(archive_.classes[each].name.c_str())) return found;
  invalid("Could not instantiate class named " + cls.name + " because no class named " + cls.name +
          " was found; the class needs to be defined in source code or linked in from a library "
          "(ensure the class is part of the correct target)");
}

Class NibDecoding::swappedClass(std::uint32_t index) {
  const std::string wanted = text(index, "UIClassName");
  const std::string original = text(index, "UIOriginalClassName");
  if (Class found = objc_getClass(wanted.c_str())) return found;
  Phone::current().journal.record(
      "log " + sim::quoted("Unknown class " + wanted + " in Interface Builder file."));
  if (Class found = objc_getClass(original.c_str())) return found;
  invalid("Could not instantiate class named " + original);
}

}  // namespace sim
