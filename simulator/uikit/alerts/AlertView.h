// What an alert looks like: the screen behind it dimmed, and a card with its words and buttons.
#pragma once

#include <vector>

#include "objc/Class.h"
#include "simulator/coregraphics/Geometry.h"

namespace sim {

struct UIAlertController;

struct AlertView : objc::Implementation<AlertView> {
  objc::Object controller;                             // not owned: it owns this view
  objc::Strong<objc::Object> card;                     // UIView
  objc::Strong<objc::Object> title, message;           // UILabel
  std::vector<objc::Strong<objc::Object>> buttons;     // UIButton, as the alert's actions
  std::vector<objc::Strong<objc::Object>> separators;  // one above or beside each button
  std::vector<bool> isCancel;                          // of each button

  // nil on a phone without views.
  static objc::Strong<objc::Object> showing(const UIAlertController& alert);
  void layoutSubviews();
  // A button of the card was tapped.
  void pressed(objc::Object button);
  // Seen appearing: the card shrinks into its place.
  void animateIn();

  static void registerClass();

 private:
  void addWords(const UIAlertController& alert);
  void addButtons(const UIAlertController& alert);
  double layOutWords();
  double layOutButtons(double top);
  bool fitSideBySide() const;
};

}  // namespace sim
