// The keys that a finger types with: Latin letters, digits and what names of devices hold besides.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "objc/Class.h"
#include "simulator/coregraphics/Geometry.h"

namespace sim {

struct Keyboard : objc::Implementation<Keyboard> {
  static constexpr double height = 260;      // points
  static constexpr const char* done = "\n";  // what the two keys type that no letters are
  static constexpr const char* remove = "\x7f";

  std::function<void(const std::string&)> typed;

  objc::Object initWithFrame(CGRect frame);
  void layoutSubviews();

  static void registerClass();

 private:
  struct Key {
    objc::Strong<objc::Object> area;  // TapArea
    double width = 1;                 // of the usual
  };

  void makeKeys();
  void addKey(std::string_view face);
  void press(const std::string& face);

  std::vector<std::vector<Key>> rows_;
  bool isShifted_ = false, showsDigits_ = false;
};

// From its last character on; of UTF-8.
void removeLastCharacter(std::string& text);

}  // namespace sim
