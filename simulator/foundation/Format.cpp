#include "simulator/foundation/Format.h"

#include <cstdint>
#include <cstdio>
#include <vector>

#include "simulator/foundation/FormatParser.h"
#include "simulator/foundation/Unicode.h"
#include "simulator/foundation/Values.h"
#include "simulator/runtime/ShownAddresses.h"

namespace sim {
namespace {

enum class Passed { asInt, asLong, asDouble, asLongDouble, asPointer };

struct FormatArgument {
  Passed passed = Passed::asInt;
  std::int64_t integer = 0;
  long double real = 0;
  void* pointer = nullptr;
};

bool isOneOf(char16_t unit, std::u16string_view set) {
  return set.find(unit) != set.npos;
}

Passed passedAs(const FormatDirective& directive) {
  if (isOneOf(directive.conversion, u"@sSp")) return Passed::asPointer;
  if (isOneOf(directive.conversion, u"fFeEgGaA"))
    return directive.length == "L" ? Passed::asLongDouble : Passed::asDouble;
  const bool isShort = directive.length.empty() || directive.length.starts_with('h');
  return isShort && !isOneOf(directive.conversion, u"DUO") ? Passed::asInt : Passed::asLong;
}

// What each argument is passed as, by its place: positions ("%2$@") may come in any order.
class ArgumentList {
 public:
  explicit ArgumentList(const std::vector<FormatPiece>& pieces) {
    for (const FormatPiece& piece : pieces) {
      const auto* directive = std::get_if<FormatDirective>(&piece);
      if (directive == nullptr) continue;
      expectNumber(directive->width);
      expectNumber(directive->precision);
      at(directive->argument).passed = passedAs(*directive);
    }
  }

  void read(std::va_list list) {
    for (FormatArgument& argument : arguments_) {
      switch (argument.passed) {
        case Passed::asInt:
          argument.integer = va_arg(list, int);
          break;
        case Passed::asLong:
          argument.integer = va_arg(list, long);
          break;
        case Passed::asDouble:
          argument.real = va_arg(list, double);
          break;
        case Passed::asLongDouble:
          argument.real = va_arg(list, long double);
          break;
        case Passed::asPointer:
          argument.pointer = va_arg(list, void*);
          break;
      }
    }
  }

  FormatArgument& at(std::size_t index) {
    if (index >= arguments_.size()) arguments_.resize(index + 1);
    return arguments_[index];
  }

  int number(const FormatNumber& number) {
    return number.argument ? int(at(*number.argument).integer) : number.value;
  }

 private:
  void expectNumber(const std::optional<FormatNumber>& number) {
    if (number && number->argument) at(*number->argument).passed = Passed::asInt;
  }

  std::vector<FormatArgument> arguments_;
};

// One directive with its width and precision known.
struct Resolved {
  const FormatDirective& directive;
  std::string flags;
  int width = 0;
  int precision = -1;  // none

  Resolved(const FormatDirective& source, ArgumentList& arguments)
      : directive(source), flags(source.flags) {
    if (source.width) width = arguments.number(*source.width);
    if (source.precision) precision = arguments.number(*source.precision);
    if (width < 0) {
      flags += '-';
      width = -width;
    }
  }

  // C prints it, in the widest type of its kind.
  template <class Value>
  std::u16string print(const char* length, Value value) const {
    std::string format = "%" + flags + "*" + (precision >= 0 ? ".*" : "") + length;
    format += directive.conversion < 0x80 ? char(directive.conversion) : '?';
    std::string printed(std::size_t(width + (precision > 0 ? precision : 0)) + 400, '\0');
    const int size =
        precision >= 0
            ? std::snprintf(printed.data(), printed.size(), format.c_str(), width, precision, value)
            : std::snprintf(printed.data(), printed.size(), format.c_str(), width, value);
    if (size < 0) return u"";
    if (std::size_t(size) >= printed.size()) {
      printed.resize(std::size_t(size) + 1);
      return print(length, value);
    }
    printed.resize(std::size_t(size));
    return unicode::fromUtf8Lossy(printed);
  }

  std::u16string pad(std::u16string text) const {
    if (precision >= 0 && std::size_t(precision) < text.size()) text.resize(std::size_t(precision));
    if (text.size() >= std::size_t(width)) return text;
    const std::u16string blanks(std::size_t(width) - text.size(), u' ');
    return flags.find('-') != flags.npos ? text + blanks : blanks + text;
  }
};

std::int64_t narrowed(const FormatDirective& directive, std::int64_t value, bool isSigned) {
  if (directive.length == "hh") return isSigned ? std::int8_t(value) : std::uint8_t(value);
  if (directive.length == "h") return isSigned ? std::int16_t(value) : std::uint16_t(value);
  if (passedAs(directive) == Passed::asInt && !isSigned) return std::uint32_t(value);
  return value;
}

std::u16string integerText(FormatDirective directive, ArgumentList& arguments) {
  const std::int64_t value = arguments.at(directive.argument).integer;
  const bool isSigned = isOneOf(directive.conversion, u"dDi");
  const std::int64_t kept = narrowed(directive, value, isSigned);
  if (isOneOf(directive.conversion, u"DUO"))
    directive.conversion = char16_t(directive.conversion + (u'a' - u'A'));
  const Resolved resolved(directive, arguments);
  return isSigned ? resolved.print("j", std::intmax_t(kept))
                  : resolved.print("j", std::uintmax_t(kept));
}

std::u16string characterText(const FormatDirective& directive, std::int64_t value) {
  if (directive.conversion == u'C') return std::u16string(1, char16_t(value));
  return std::u16string(1, static_cast<unsigned char>(value));
}

std::u16string cText(const Resolved& resolved, const char* bytes) {
  if (bytes == nullptr) return u"(null)";
  std::size_t size = 0;  // a precision also bounds what may be read
  while ((resolved.precision < 0 || size < std::size_t(resolved.precision)) && bytes[size] != 0)
    ++size;
  return unicode::fromUtf8Lossy({bytes, size});
}

std::u16string pointerText(const void* pointer) {
  char digits[24];
  std::snprintf(digits, sizeof digits, "0x%jx", std::uintmax_t(runtime::shownAddress(pointer)));
  return unicode::fromUtf8Lossy(digits);
}

std::u16string realText(const Resolved& resolved, const FormatArgument& argument) {
  if (argument.passed == Passed::asLongDouble) return resolved.print("L", argument.real);
  return resolved.print("", double(argument.real));
}

std::u16string directiveText(const FormatDirective& directive, ArgumentList& arguments) {
  const Resolved resolved(directive, arguments);
  const FormatArgument& argument = arguments.at(directive.argument);
  switch (directive.conversion) {
    case u'@':
      return resolved.pad(
          unicode::fromUtf8Lossy(description(objc::Object(static_cast<id>(argument.pointer)))));
    case u's':
      return resolved.pad(cText(resolved, static_cast<const char*>(argument.pointer)));
    case u'S':
      if (argument.pointer == nullptr) return resolved.pad(u"(null)");
      return resolved.pad(static_cast<const char16_t*>(argument.pointer));
    case u'p':
      return resolved.pad(pointerText(argument.pointer));
    case u'c':
    case u'C':
      return resolved.pad(characterText(directive, argument.integer));
    default:
      if (isOneOf(directive.conversion, u"fFeEgGaA")) return realText(resolved, argument);
      if (isOneOf(directive.conversion, u"dDiuUxXoO")) return integerText(directive, arguments);
      return std::u16string(1, directive.conversion);
  }
}

}  // namespace

std::u16string formatUnits(std::u16string_view format, std::va_list list) {
  const std::vector<FormatPiece> pieces = parseFormat(format);
  ArgumentList arguments(pieces);
  arguments.read(list);
  std::u16string result;
  for (const FormatPiece& piece : pieces) {
    const auto* directive = std::get_if<FormatDirective>(&piece);
    result += directive == nullptr ? std::get<std::u16string>(piece)
                                   : directiveText(*directive, arguments);
  }
  return result;
}

}  // namespace sim
