#include "tools/nibc/xib/Document.h"

#include <utility>

namespace xib {

Document::Document(std::string text) : source_(std::move(text)) {
  const std::string& bytes = source_.text();
  const pugi::xml_parse_result result =
      xml_.load_buffer(bytes.data(), bytes.size(), pugi::parse_default, pugi::encoding_utf8);
  if (!result)
    throw Error(source_.position(std::size_t(result.offset)),
                std::string("is no XML: ") + result.description());
  // The parser takes several elements, too.
  if (const pugi::xml_node second = xml_.document_element().next_sibling())
    throw Error(source_.position(std::size_t(second.offset_debug()) - 1),
                "a document has only one outermost element");
}

Element Document::root() const {
  return {source_, xml_.document_element()};
}

}  // namespace xib
