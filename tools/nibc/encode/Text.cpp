#include "tools/nibc/encode/Text.h"

namespace xib {

std::string textOf(Element& element, const char* attribute) {
  auto lines = element.child("string", attribute);
  if (!lines) return element.text(attribute).value_or("");
  if (element.has(attribute)) lines->fail("the same text as an attribute and as a <string>");
  std::string text = lines->content();
  if (lines->has("base64-UTF8")) lines->failAt("base64-UTF8", "encoded texts are not supported");
  lines->finish();
  return text;
}

}  // namespace xib
