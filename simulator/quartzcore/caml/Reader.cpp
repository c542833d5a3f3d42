#include "simulator/quartzcore/caml/Reader.h"

#include <algorithm>
#include <pugixml.hpp>

#include "simulator/foundation/Unicode.h"
#include "simulator/quartzcore/caml/ObjectReader.h"
#include "simulator/quartzcore/caml/Text.h"

namespace sim::caml {
namespace {

void requireText(std::string_view document) {
  constexpr std::size_t most = 4 << 20;  // bytes; a drawing by hand has a thousandth of it
  if (document.size() > most) throw Error(most, "expected at most 4 MB");
  if (const std::size_t nul = document.find('\0'); nul != document.npos)
    throw Error(nul, "expected text, found a zero byte");
  if (!unicode::fromUtf8(document)) throw Error(0, "expected UTF-8");
}

void parse(std::string_view document, pugi::xml_document& xml) {
  const pugi::xml_parse_result result =
      xml.load_buffer(document.data(), document.size(), pugi::parse_default, pugi::encoding_utf8);
  if (result) return;
  // At the end of the document the parser may be one byte behind it.
  const auto where = std::min(std::size_t(result.offset), document.size());
  throw Error(where, std::string("expected XML: ") + result.description());
}

std::size_t offsetOf(pugi::xml_node element) {
  return std::size_t(std::max<std::ptrdiff_t>(element.offset_debug(), 0));
}

bool isElement(pugi::xml_node node) {
  return node.type() == pugi::node_element;
}

// The parser takes several outermost elements.
pugi::xml_node outermost(const pugi::xml_document& xml) {
  const pugi::xml_node root = xml.document_element();
  if (root.name() != std::string_view("caml"))
    throw Error(offsetOf(root), "expected <caml>, found <" + std::string(root.name()) + ">");
  for (pugi::xml_node next = root.next_sibling(); next; next = next.next_sibling())
    if (isElement(next)) throw Error(offsetOf(next), "expected the end of the document");
  return root;
}

pugi::xml_node onlyChild(pugi::xml_node root) {
  const pugi::xml_node child = root.find_child(isElement);
  if (!child) throw Error(offsetOf(root), "expected an object in <caml>");
  for (pugi::xml_node next = child.next_sibling(); next; next = next.next_sibling())
    if (isElement(next))
      throw Error(offsetOf(next), "expected one object in <caml>, found a second one");
  return child;
}

}  // namespace

objc::Strong<objc::Object> read(std::string_view document, const std::string& folder) {
  requireText(document);
  pugi::xml_document xml;
  parse(document, xml);
  ObjectReader reader(folder);
  auto made = reader.object(onlyChild(outermost(xml)));
  reader.connect();
  return made;
}

std::string lineAndColumn(std::string_view document, std::size_t offset) {
  const std::string_view before = document.substr(0, offset);
  const std::string_view line = before.substr(before.rfind('\n') + 1);
  const auto startsCharacter = [](char byte) { return (byte & 0xC0) != 0x80; };
  return std::to_string(std::count(before.begin(), before.end(), '\n') + 1) + ':' +
         std::to_string(std::count_if(line.begin(), line.end(), startsCharacter) + 1);
}

}  // namespace sim::caml
