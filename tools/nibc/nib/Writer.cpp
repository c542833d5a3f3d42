#include "tools/nibc/nib/Writer.h"

#include <bit>

namespace nib {
namespace {

void append(std::string& to, std::uint64_t value, unsigned bytes) {
  for (unsigned i = 0; i < bytes; ++i) to += char(value >> (8 * i));
}

void appendType(std::string& to, Type type) {
  to += char(type);
}

void appendVarint(std::string& to, std::uint32_t value) {
  for (; value >= 0x80; value >>= 7) to += char(value & 0x7f);
  to += char(value | 0x80);
}

// One overload for each kind of content: the type, then what follows it.
struct ContentWriter {
  std::string& to;

  void operator()(const Integer& integer) const {
    appendType(to, Type(std::countr_zero(integer.bytes)));
    append(to, std::uint64_t(integer.value), integer.bytes);
  }
  void operator()(bool value) const { appendType(to, value ? Type::yes : Type::no); }
  void operator()(float value) const {
    appendType(to, Type::float32);
    append(to, std::bit_cast<std::uint32_t>(value), 4);
  }
  void operator()(double value) const {
    appendType(to, Type::float64);
    append(to, std::bit_cast<std::uint64_t>(value), 8);
  }
  void operator()(const Data& data) const {
    appendType(to, Type::data);
    appendVarint(to, std::uint32_t(data.size()));
    to += data;
  }
  void operator()(Nil) const { appendType(to, Type::nil); }
  void operator()(Reference reference) const {
    appendType(to, Type::reference);
    append(to, reference.object, 4);
  }
};

std::string objectTable(const Archive& archive) {
  std::string table;
  for (const Object& object : archive.objects)
    for (const std::uint32_t each : {object.cls, object.firstValue, object.valueCount})
      appendVarint(table, each);
  return table;
}

std::string keyTable(const Archive& archive) {
  std::string table;
  for (const std::string& key : archive.keys) {
    appendVarint(table, std::uint32_t(key.size()));
    table += key;
  }
  return table;
}

std::string valueTable(const Archive& archive) {
  std::string table;
  for (const Value& value : archive.values) {
    appendVarint(table, value.key);
    std::visit(ContentWriter{table}, value.content);
  }
  return table;
}

std::string classTable(const Archive& archive) {
  std::string table;
  for (const Class& cls : archive.classes) {
    appendVarint(table, std::uint32_t(cls.name.size() + 1));
    appendVarint(table, std::uint32_t(cls.fallbacks.size()));
    for (const std::uint32_t fallback : cls.fallbacks) append(table, fallback, 4);
    table += cls.name;
    table += '\0';
  }
  return table;
}

}  // namespace

std::string write(const Archive& archive) {
  std::string file(magic), tables;
  append(file, archive.format, 4);
  append(file, archive.coder, 4);
  const auto add = [&](std::size_t count, const std::string& table) {
    append(file, count, 4);
    append(file, headerSize + tables.size(), 4);
    tables += table;
  };
  add(archive.objects.size(), objectTable(archive));
  add(archive.keys.size(), keyTable(archive));
  add(archive.values.size(), valueTable(archive));
  add(archive.classes.size(), classTable(archive));
  return file + tables;
}

}  // namespace nib
