// Interface Builder documents for tests.
#pragma once

#include <string>

namespace xib {

// A document whose <objects> begin on line 3, column 1.
inline std::string document(const std::string& objects, const std::string& after = "") {
  return "<document type=\"com.apple.InterfaceBuilder3.CocoaTouch.XIB\" version=\"3.0\" "
         "colorMatched=\"YES\">\n<objects>\n" +
         objects + "\n</objects>" + after + "</document>";
}

// An outermost view with the id "v"; its attributes begin at column 14 of the line, the children
// on the next one.
inline std::string view(const std::string& attributes, const std::string& children = "") {
  return "<view id=\"v\" " + attributes +
         "><rect key=\"frame\" x=\"0\" y=\"0\" width=\"100\" height=\"50\"/>\n" + children +
         "</view>";
}

// The same with another element, as the only subview of such a view; attributes at column 7 of
// the line 4, children on line 5.
inline std::string subview(const std::string& element, const std::string& attributes,
                           const std::string& children = "") {
  const std::string frame = "><rect key=\"frame\" x=\"10\" y=\"20\" width=\"30\" height=\"40\"/>\n";
  return view("", "<subviews><" + element + "\nid=\"s\" " + attributes + frame + children + "</" +
                      element + "></subviews>");
}

}  // namespace xib
