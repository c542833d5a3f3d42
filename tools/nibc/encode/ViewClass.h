// The kinds of views that can be compiled.
#pragma once

#include <string_view>

#include "tools/nibc/encode/Layout.h"

namespace xib {

struct ViewClass {
  const char* element;  // in the source
  const char* name;     // of the class
  Item::Kind kind;
  // Adds what the class has beyond every view's keys; nullptr when that is nothing.
  void (*encode)(Element& element, nib::Node& node, Layout& layout);
};

// nullptr for elements that are no supported view.
const ViewClass* viewClassOf(std::string_view element);

void encodeLabel(Element& label, nib::Node& node, Layout& layout);
void encodeButton(Element& button, nib::Node& node, Layout& layout);
void encodeImageView(Element& imageView, nib::Node& node, Layout& layout);
void encodeStackView(Element& stackView, nib::Node& node, Layout& layout);

}  // namespace xib
