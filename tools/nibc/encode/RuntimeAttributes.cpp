#include "tools/nibc/encode/RuntimeAttributes.h"

#include "tools/nibc/encode/Color.h"

namespace xib {
namespace {

nib::Node* numberValue(Element& attribute, Layout& layout) {
  nib::Node* number = nullptr;
  if (auto integer = attribute.child("integer", "value")) {
    integer->requiredText("value");
    number = layout.graph.integerNumber(*integer->integer("value"));
    integer->finish();
  } else if (auto real = attribute.child("real", "value")) {
    number = layout.graph.doubleNumber(real->requiredNumber("value"));
    real->finish();
  } else {
    attribute.fail("an attribute of type \"number\" needs <integer> or <real>, key=\"value\"");
  }
  return number;
}

nib::Node* colorValue(Element& attribute, Layout& layout) {
  if (auto color = attribute.child("color", "value")) return encodeColor(*color, layout);
  attribute.fail("an attribute of type \"color\" needs <color key=\"value\">");
}

nib::Node* valueOf(Element& attribute, Layout& layout) {
  enum { boolean, color, nil, number, string };
  static constexpr Choice types[] = {
      {"boolean", boolean}, {"color", color}, {"nil", nil}, {"number", number}, {"string", string}};
  attribute.requiredText("type");
  switch (*attribute.choice("type", types)) {
    case boolean:
      attribute.requiredText("value");
      return layout.graph.boolNumber(attribute.flag("value", false));
    case color:
      return colorValue(attribute, layout);
    case number:
      return numberValue(attribute, layout);
    case string:
      return layout.graph.string(attribute.text("value").value_or(""));
    default:
      return nullptr;
  }
}

}  // namespace

void encodeRuntimeAttributes(Element& element, nib::Node& node, Layout& layout) {
  auto list = element.child("userDefinedRuntimeAttributes");
  if (!list) return;
  for (Element& each : list->children()) {
    nib::Node* pair = layout.graph.make("UINibKeyValuePair");
    pair->setObject("UIObject", &node);
    pair->setObject("UIValue", valueOf(each, layout));
    pair->setObject("UIKeyPath", layout.graph.string(each.requiredText("keyPath")));
    each.finish();
    layout.keyValuePairs.push_back(pair);
  }
  list->finish();
}

}  // namespace xib
