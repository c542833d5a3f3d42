// A row of a page of the Settings application.
#pragma once

#include <functional>
#include <string>

#include "objc/Class.h"
#include "simulator/coregraphics/Geometry.h"

namespace sim {

// What a row shows and does.
struct Row {
  enum class End { none, arrow, check, toggle };

  std::string label;
  std::string value = {};
  bool valueIsFaint = true;  // not typed by a person, or only a hint
  End end = End::none;
  bool isTyped = false;   // just now, with a keyboard below
  bool isOn = false;      // of a toggle
  std::string icon = {};  // the phone's path of a PNG; empty: none
  std::function<void()> tapped = {};
  std::function<void(const std::string&)> typed = {};  // of a row whose value is typed
};

struct RowView : objc::Implementation<RowView> {
  static constexpr double height = 44;  // points

  objc::Strong<objc::Object> label, value;  // UILabel
  objc::Strong<objc::Object> icon;          // UIImageView; nil: none
  objc::Strong<objc::Object> end;           // UIView; nil: none
  Row row;

  objc::Object initWithFrame(CGRect frame);
  void show(const Row& shown);
  void setHighlighted(bool on);
  void layoutSubviews();

  static void registerClass();

 private:
  void showIcon();
  void showEnd(Row::End kind);
  void speak();
  double layOutEnd(CGSize size);
};

}  // namespace sim
