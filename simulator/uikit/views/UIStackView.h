// A stack: subviews in a row or a column, without gaps where one is hidden. Constraints place them,
// see autolayout/StackConstraints.cpp.
#pragma once

#include <utility>
#include <vector>

#include "objc/Class.h"

namespace sim {

struct UIStackView : objc::Implementation<UIStackView> {
  static constexpr long horizontal = 0, vertical = 1;
  static constexpr long fill = 0, fillEqually = 1, fillProportionally = 2, equalSpacing = 3,
                        equalCentering = 4;
  static constexpr long alignFill = 0, alignLeading = 1, alignFirstBaseline = 2, alignCenter = 3,
                        alignTrailing = 4, alignLastBaseline = 5;

  std::vector<objc::Strong<objc::Object>> arranged;
  long axis = horizontal;
  long distribution = fill;
  long alignment = alignFill;
  double spacing = 0;  // points
  bool isArrangedInMargins = false;
  // Points, after views of their own; of views that have gone, too.
  std::vector<std::pair<objc::Weak<objc::Object>, double>> customSpacings;

  objc::Object initWithArrangedSubviews(objc::Object views);
  objc::Object arrangedSubviews() const;
  void insertArranged(objc::Object view, unsigned long index);
  void addArranged(objc::Object view) { insertArranged(view, arranged.size()); }
  void removeArranged(objc::Object view);  // stays a subview
  void willRemoveSubview(objc::Object view);
  std::vector<objc::Object> visible() const;
  double spacingAfter(objc::Object view) const;
  void setCustomSpacing(double points, objc::Object view);

  static void registerClass();
};

}  // namespace sim
