// An Interface Builder document, parsed as XML.
#pragma once

#include <pugixml.hpp>
#include <string>

#include "tools/nibc/xib/Element.h"
#include "tools/nibc/xib/Source.h"

namespace xib {

class Document {
 public:
  // Throws Error when the text is no well-formed XML with one element outermost.
  explicit Document(std::string text);
  Document(const Document&) = delete;  // elements point into it
  Document& operator=(const Document&) = delete;

  // The outermost element. Not to be used after the document's end.
  Element root() const;

 private:
  Source source_;
  pugi::xml_document xml_;
};

}  // namespace xib
