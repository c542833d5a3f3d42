// The text of an Interface Builder document, and places in it.
#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>

namespace xib {

// Both count from 1; columns count characters.
struct Position {
  std::size_t line;
  std::size_t column;
};

// Something in a document that cannot be compiled.
class Error : public std::runtime_error {
 public:
  Error(Position where, const std::string& problem)
      : std::runtime_error(problem), position(where) {}
  Position position;
};

class Source {
 public:
  // Throws Error when the text is not UTF-8.
  explicit Source(std::string text);

  const std::string& text() const { return text_; }
  // Of a byte of the text; an offset beyond the end is that of the end.
  Position position(std::size_t offset) const;
  // The offset of an attribute's name inside the tag whose element name begins at `tag`; `tag`
  // itself when the tag has no such attribute.
  std::size_t attributeOffset(std::size_t tag, std::string_view attribute) const;

 private:
  std::string text_;
};

}  // namespace xib
