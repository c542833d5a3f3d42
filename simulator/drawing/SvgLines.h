// The lines of an SVG document, indented.
#pragma once

#include <string>
#include <string_view>

namespace sim {

class SvgLines {
 public:
  void add(std::string_view element) { text_.append(2 * depth_, ' ').append(element).append("\n"); }
  void begin(std::string_view tag) {
    add(tag);
    ++depth_;
  }
  void end(std::string_view name) {
    --depth_;
    add("</" + std::string(name) + ">");
  }
  const std::string& text() const { return text_; }

 private:
  std::string text_;
  std::size_t depth_ = 0;
};

}  // namespace sim
