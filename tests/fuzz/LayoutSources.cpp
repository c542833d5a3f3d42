// Any text is a document that can be compiled, into a layout that can be read, or an error with
// its place.
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "tools/nibc/Compiler.h"
#include "tools/nibc/nib/Reader.h"
#include "tools/nibc/nib/Writer.h"
#include "tools/nibc/xib/Source.h"

namespace {

void compile(const std::string& text) {
  try {
    const std::string bytes = nib::write(xib::compile(text));
    if (nib::write(nib::read(bytes)) != bytes) std::abort();
  } catch (const xib::Error& error) {
    if (error.position.line < 1 || error.position.column < 1) std::abort();
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
  const std::string text(reinterpret_cast<const char*>(bytes), count);
  compile(text);
  // Within a document, to get beyond its outermost element.
  compile(
      "<document type=\"com.apple.InterfaceBuilder3.CocoaTouch.XIB\" version=\"3.0\"><objects>"
      "<view id=\"v\"><rect key=\"frame\" x=\"0\" y=\"0\" width=\"1\" height=\"1\"/>" +
      text + "</view></objects></document>");
  return 0;
}
