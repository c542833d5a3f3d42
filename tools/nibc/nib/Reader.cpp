#include "tools/nibc/nib/Reader.h"

#include <bit>

#include "tools/nibc/nib/Cursor.h"

namespace nib {
namespace {

struct Table {
  const char* name;
  std::uint32_t count;
  std::uint32_t offset;
  std::size_t headerOffset;  // of `offset` itself
};

class Reader {
 public:
  explicit Reader(std::string_view bytes) : cursor_(bytes) {}

  Archive read() {
    readHeader();
    begin(objects_);
    for (std::uint32_t i = 0; i < objects_.count; ++i) archive_.objects.push_back(object());
    begin(keys_);
    for (std::uint32_t i = 0; i < keys_.count; ++i)
      archive_.keys.emplace_back(cursor_.take(cursor_.varint("the length of a key"), "a key"));
    begin(values_);
    for (std::uint32_t i = 0; i < values_.count; ++i) archive_.values.push_back(value());
    begin(classes_);
    for (std::uint32_t i = 0; i < classes_.count; ++i) archive_.classes.push_back(cls());
    if (!cursor_.atEnd()) throw FormatError(cursor_.offset(), "bytes follow the last class");
    return std::move(archive_);
  }

 private:
  void readHeader() {
    if (cursor_.take(magic.size(), "the header") != magic)
      throw FormatError(0, "is no compiled layout: it does not begin with NIBArchive");
    archive_.format = std::uint32_t(cursor_.fixed(4, "the header"));
    if (archive_.format > newestFormat)
      throw FormatError(magic.size(), "format " + std::to_string(archive_.format) + " is too new");
    archive_.coder = std::uint32_t(cursor_.fixed(4, "the header"));
    for (Table* each : {&objects_, &keys_, &values_, &classes_}) {
      each->count = std::uint32_t(cursor_.fixed(4, "the header"));
      each->headerOffset = cursor_.offset();
      each->offset = std::uint32_t(cursor_.fixed(4, "the header"));
    }
    if (objects_.count == 0) throw FormatError(18, "there is no root object");
  }

  void begin(const Table& table) {
    if (table.offset == cursor_.offset()) return;
    throw FormatError(table.headerOffset,
                      std::string("the ") + table.name + " are said to begin at " +
                          std::to_string(table.offset) + ", but what comes before ends at " +
                          std::to_string(cursor_.offset()));
  }

  Object object() {
    const std::uint32_t cls = cursor_.index(classes_.count, "class");
    const std::size_t start = cursor_.offset();
    const std::uint32_t first = cursor_.varint("the first value of an object");
    const std::uint32_t count = cursor_.varint("the number of an object's values");
    if (std::uint64_t(first) + count > values_.count)
      throw FormatError(start, "an object's values end at " +
                                   std::to_string(std::uint64_t(first) + count) +
                                   ", but there are " + std::to_string(values_.count));
    return {cls, first, count};
  }

  Value value() {
    const std::uint32_t key = cursor_.index(keys_.count, "key");
    const std::size_t start = cursor_.offset();
    const auto type = std::uint8_t(cursor_.fixed(1, "the type of a value"));
    if (type > std::uint8_t(Type::reference))
      throw FormatError(start, "a value has the unknown type " + std::to_string(type));
    return {key, content(Type(type))};
  }

  decltype(Value::content) content(Type type) {
    switch (type) {
      case Type::int8:
        return Integer{std::int8_t(cursor_.fixed(1, "a value")), 1};
      case Type::int16:
        return Integer{std::int16_t(cursor_.fixed(2, "a value")), 2};
      case Type::int32:
        return Integer{std::int32_t(cursor_.fixed(4, "a value")), 4};
      case Type::int64:
        return Integer{std::int64_t(cursor_.fixed(8, "a value")), 8};
      case Type::no:
      case Type::yes:
        return type == Type::yes;
      case Type::float32:
        return std::bit_cast<float>(std::uint32_t(cursor_.fixed(4, "a value")));
      case Type::float64:
        return std::bit_cast<double>(cursor_.fixed(8, "a value"));
      case Type::data:
        return Data(cursor_.take(cursor_.varint("the length of data"), "data"));
      case Type::nil:
        return Nil();
      case Type::reference:
        return reference();
    }
    return Nil();  // not reached: the caller knows all types
  }

  Reference reference() {
    const std::size_t start = cursor_.offset();
    const auto object = std::uint32_t(cursor_.fixed(4, "a reference"));
    if (object >= objects_.count)
      throw FormatError(start, "object " + std::to_string(object) + " does not exist: there are " +
                                   std::to_string(objects_.count));
    return {object};
  }

  Class cls() {
    Class read;
    const std::size_t start = cursor_.offset();
    const std::uint32_t length = cursor_.varint("the length of a class name");
    const std::uint32_t fallbacks = cursor_.varint("the number of a class's fallbacks");
    for (std::uint32_t i = 0; i < fallbacks; ++i) read.fallbacks.push_back(fallback());
    read.name = cursor_.take(length, "a class name");
    if (read.name.empty() || read.name.find('\0') != read.name.size() - 1)
      throw FormatError(start, "a class name does not end with its only NUL");
    read.name.pop_back();
    return read;
  }

  std::uint32_t fallback() {
    const std::size_t start = cursor_.offset();
    const auto index = std::uint32_t(cursor_.fixed(4, "a fallback"));
    if (index < classes_.count) return index;
    throw FormatError(start, "class " + std::to_string(index) + " does not exist: there are " +
                                 std::to_string(classes_.count));
  }

  Cursor cursor_;
  Archive archive_;
  Table objects_{"objects", 0, 0, 0}, keys_{"keys", 0, 0, 0};
  Table values_{"values", 0, 0, 0}, classes_{"classes", 0, 0, 0};
};

}  // namespace

Archive read(std::string_view bytes) {
  return Reader(bytes).read();
}

}  // namespace nib
