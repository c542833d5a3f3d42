#include "tools/nibc/nib/Dump.h"

#include <charconv>

#include "tools/nibc/nib/Geometry.h"
#include "tools/nibc/nib/Quoting.h"

namespace nib {
namespace {

template <class Number>
std::string shortest(Number number) {
  char buffer[64];
  return {buffer, std::to_chars(buffer, buffer + sizeof buffer, number).ptr};
}

std::string numberList(const std::vector<double>& numbers) {
  std::string list = "{";
  for (const double each : numbers) list += (list.size() > 1 ? ", " : "") + shortest(each);
  return list + "}";
}

class Dumper {
 public:
  explicit Dumper(const Archive& archive) : archive_(archive) {}

  std::string all() const {
    std::string text = "format " + std::to_string(archive_.format) + ", coder " +
                       std::to_string(archive_.coder) + "\n";
    for (const Class& cls : archive_.classes) text += fallbacks(cls);
    for (std::size_t i = 0; i < archive_.objects.size(); ++i) text += object(std::uint32_t(i));
    return text;
  }

  std::string operator()(const Integer& integer) const {
    return std::to_string(integer.value) + " (" + std::to_string(integer.bytes * 8) + " bits)";
  }
  std::string operator()(bool value) const { return value ? "true" : "false"; }
  std::string operator()(float value) const { return "float " + shortest(value); }
  std::string operator()(double value) const { return "double " + shortest(value); }
  std::string operator()(const Data& data) const { return hexadecimal(data); }
  std::string operator()(Nil) const { return "nil"; }
  std::string operator()(Reference reference) const {
    const std::string note = summary(archive_.objects[reference.object]);
    return name(reference.object) + (note.empty() ? "" : " " + note);
  }

 private:
  std::string fallbacks(const Class& cls) const {
    if (cls.fallbacks.empty()) return "";
    std::string line = "class " + escaped(cls.name);
    for (const std::uint32_t each : cls.fallbacks)
      line += ", else " + escaped(archive_.classes[each].name);
    return line + "\n";
  }

  std::string name(std::uint32_t object) const {
    const std::uint32_t cls = archive_.objects[object].cls;
    return "@" + std::to_string(object) + " " + escaped(archive_.classes[cls].name);
  }

  std::string object(std::uint32_t index) const {
    const Object& object = archive_.objects[index];
    std::string lines = name(index) + "\n";
    for (std::uint32_t i = 0; i < object.valueCount; ++i) {
      const Value& value = archive_.values[object.firstValue + i];
      lines += "    " + escaped(archive_.keys[value.key]) + " = " + content(value) + "\n";
    }
    return lines;
  }

  std::string content(const Value& value) const {
    const Data* data = std::get_if<Data>(&value.content);
    if (data == nullptr) return std::visit(*this, value.content);
    if (archive_.keys[value.key] == "NS.bytes") return quoted(*data);
    const auto numbers = geometryNumbers(*data);
    return numbers ? numberList(*numbers) : (*this)(*data);
  }

  // What a string or a number holds, to be read where it is used.
  std::string summary(const Object& object) const {
    if (object.valueCount != 1) return "";
    const Value& only = archive_.values[object.firstValue];
    if (std::holds_alternative<Reference>(only.content)) return "";
    return archive_.keys[only.key].starts_with("NS.") ? content(only) : "";
  }

  const Archive& archive_;
};

}  // namespace

std::string dump(const Archive& archive) {
  return Dumper(archive).all();
}

}  // namespace nib
