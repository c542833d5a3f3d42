// What cannot be compiled faithfully is refused, with the place and the reason.
#include <gtest/gtest.h>

#include "tests/nibc/TestDocument.h"
#include "tools/nibc/Compiler.h"
#include "tools/nibc/xib/Source.h"

namespace xib {
namespace {

std::string refusal(const std::string& text) {
  try {
    compile(text);
  } catch (const Error& error) {
    return std::to_string(error.position.line) + ":" + std::to_string(error.position.column) +
           ": " + error.what();
  }
  return "compiled";
}

struct Refusal {
  const char* name;
  std::string text;
  const char* message;

  friend void PrintTo(const Refusal& refusal, std::ostream* stream) { *stream << refusal.name; }
};

class Refusals : public testing::TestWithParam<Refusal> {};

TEST_P(Refusals, SayWhereAndWhy) {
  EXPECT_EQ(refusal(GetParam().text), GetParam().message);
}

std::string constraint(const std::string& attributes) {
  return document(
      view("", "<constraints>\n<constraint id=\"c\" " + attributes + "/></constraints>"));
}

std::string color(const std::string& attributes) {
  return document(view("", "<color key=\"backgroundColor\" " + attributes + "/>"));
}

std::string connection(const std::string& element) {
  return document(view("", "<connections>\n" + element + "</connections>"));
}

std::string font(const std::string& attributes) {
  return document(
      subview("label", "", "<fontDescription key=\"fontDescription\" " + attributes + "/>"));
}

const std::string black = "white=\"0\" alpha=\"1\" ";
const std::string manyViews = [] {
  std::string text = view("");
  for (int i = 0; i < 101; ++i) {
    const std::string id = "id=\"w" + std::to_string(i) + "\"";
    text = view("", "<subviews>" + text + "</subviews>").replace(6, 6, id);
  }
  return text;
}();

const Refusal documents[] = {
    {"NoXml", "<document>", "1:10: is no XML: Start-end tags mismatch"},
    {"Empty", "", "1:1: is no XML: No document element found"},
    {"NoUtf8", "<a>\n\xc3\xa4\xff</a>", "2:2: is not UTF-8"},
    {"TwoRoots", "<a/>\n<b/>", "2:1: a document has only one outermost element"},
    {"OtherRoot", "<archive/>", "1:1: the outermost element must be <document>, not <archive>"},
    {"NoType", "<document/>", "1:1: <document> has no \"type\""},
    {"OtherType", "<document type=\"com.apple.InterfaceBuilder3.Cocoa.XIB\"/>",
     "1:11: \"type\" must be \"com.apple.InterfaceBuilder3.CocoaTouch.XIB\", not "
     "\"com.apple.InterfaceBuilder3.Cocoa.XIB\""},
    {"NoObjects", "<document type=\"com.apple.InterfaceBuilder3.CocoaTouch.XIB\" version=\"3.0\"/>",
     "1:1: the document has no <objects>"},
    {"SafeAreas",
     "<document type=\"com.apple.InterfaceBuilder3.CocoaTouch.XIB\" version=\"3.0\" "
     "useSafeAreas=\"YES\"/>",
     "1:75: safe areas are not supported"},
    {"OtherPlaceholder", document("<placeholder placeholderIdentifier=\"Me\" id=\"-1\"/>"),
     "3:14: \"Me\" is not supported as \"placeholderIdentifier\", which can be: IBFilesOwner, "
     "IBFirstResponder"},
    {"Resource", document("", "<resources><namedColor name=\"x\"/></resources>"),
     "4:22: <namedColor> inside of <resources> is not supported"},
};

const Refusal views[] = {
    {"OtherView", document("<slider id=\"s\"/>"), "3:1: <slider> is not supported as a view"},
    {"OtherSubview", document(view("", "<subviews><slider id=\"s\"/></subviews>")),
     "4:11: <slider> is not supported as a view"},
    {"NoId", document("<view/>"), "3:1: <view> has no \"id\""},
    {"SameId", document(view("") + "\n" + view("")),
     "5:7: the id \"v\" is taken by the element at 3:1"},
    {"NoFrame", document("<view id=\"v\"/>"), "3:1: <view> has no <rect key=\"frame\">"},
    {"TwoFrames", document(view("", "<rect key=\"frame\"/>")),
     "4:1: a second <rect> in the same element"},
    {"NegativeWidth",
     document(
         "<view id=\"v\"><rect key=\"frame\" x=\"0\" y=\"0\" width=\"-1\" height=\"1\"/></view>"),
     "3:44: a size is not negative (width)"},
    {"Attribute", document(view("blur=\"YES\"")), "3:14: \"blur\" of <view> is not supported"},
    {"AttributeTwice", document(view("alpha=\"1\" alpha=\"0\"")), "3:14: \"alpha\" occurs twice"},
    {"Child", document(view("", "<variation key=\"default\"/>")),
     "4:1: <variation key=\"default\"> inside of <view> is not supported"},
    {"Text", document(view("", "words")), "3:1: text inside of <view> is not supported"},
    {"Flag", document(view("hidden=\"true\"")),
     "3:14: \"true\" is not supported as \"hidden\", which can be: YES, NO"},
    {"Number", document(view("alpha=\"0.5x\"")), "3:14: \"0.5x\" is no number (alpha)"},
    {"Infinity", document(view("alpha=\"inf\"")), "3:14: \"inf\" is no number (alpha)"},
    {"Alpha", document(view("alpha=\"1.1\"")), "3:14: alpha goes from 0 to 1"},
    {"Tag", document(view("tag=\"1.5\"")), "3:14: \"1.5\" is no whole number (tag)"},
    {"Hugging", document(view("horizontalHuggingPriority=\"0\"")),
     "3:14: a priority is a whole number from 1 to 1000"},
    {"EmptyClass", document(view("customClass=\"\"")), "3:14: \"customClass\" is empty"},
    {"SwiftModule", document(view("customClass=\"A\" customModule=\"M\"")),
     "3:30: \"customModule\" of <view> is not supported"},
    {"Depth", document(manyViews), "103:11: views are nested too deeply"},
    {"RuntimeAttribute",
     document(view("",
                   "<userDefinedRuntimeAttributes><userDefinedRuntimeAttribute\n"
                   "type=\"point\" keyPath=\"a\"/></userDefinedRuntimeAttributes>")),
     "5:1: \"point\" is not supported as \"type\", which can be: boolean, color, nil, number, "
     "string"},
};

const Refusal details[] = {
    {"LabelLines", document(subview("label", "numberOfLines=\"-1\"")),
     "5:8: a number of lines is not negative"},
    {"LabelScale", document(subview("label", "minimumScaleFactor=\"2\"")),
     "5:8: a scale factor goes from 0 to 1 (minimumScaleFactor)"},
    {"ButtonState", document(subview("button", "", "<state key=\"focused\" title=\"a\"/>")),
     "6:1: <state key=\"focused\"> inside of <button> is not supported"},
    {"Image", document(subview("imageView", "image=\"moon\"")),
     "5:8: <resources> has no image \"moon\""},
    {"StackAxis", document(subview("stackView", "axis=\"diagonal\"")),
     "5:8: \"diagonal\" is not supported as \"axis\", which can be: horizontal, vertical"},
    {"FontSize", font("type=\"system\" pointSize=\"0\""),
     "6:54: a font's size is positive (pointSize)"},
    {"FontStyle", font("style=\"UICTFontTextStyleBody\""),
     "6:1: a <fontDescription> needs \"type\" or \"name\""},
    {"FontWeight", font("type=\"boldSystem\" weight=\"thin\" pointSize=\"1\""),
     "6:58: only the type \"system\" has weights"},
    {"ColorComponent", color("white=\"2\" alpha=\"1\" colorSpace=\"deviceWhite\""),
     "4:30: a colour component goes from 0 to 1 (white)"},
    {"ColorMissing", color("red=\"1\" green=\"1\" alpha=\"1\" colorSpace=\"deviceRGB\""),
     "4:1: <color> has no \"blue\""},
    {"ColorSpace", color(black + "colorSpace=\"custom\" customColorSpace=\"displayP3\""),
     "4:50: the colour space \"displayP3\" is not supported; use genericGamma22GrayColorSpace"},
    {"ColorConverted", color(black + "colorSpace=\"calibratedWhite\""),
     "4:50: the colour space \"calibratedWhite\" is not supported; use "
     "genericGamma22GrayColorSpace"},
    {"ColorWord", color("white=\"black\" alpha=\"1\" colorSpace=\"deviceWhite\""),
     "4:30: \"black\" is no number (white)"},
    {"SystemColor", color("systemColor=\"labelColor\""),
     "4:30: <resources> has no system colour \"labelColor\""},
};

const Refusal constraints[] = {
    {"ConstraintItem", constraint("firstItem=\"x\" firstAttribute=\"width\""),
     "5:20: nothing has the id \"x\""},
    {"ConstraintOfConstraint", constraint("firstItem=\"c\" firstAttribute=\"width\""),
     "5:20: only views can be constrained (firstItem)"},
    {"ConstraintOutside",
     document(
         "<view id=\"w\"><rect key=\"frame\" x=\"0\" y=\"0\" width=\"1\" height=\"1\"/></view>" +
         view("",
              "<constraints>\n<constraint id=\"c\" firstItem=\"w\" "
              "firstAttribute=\"width\"/></constraints>")),
     "5:20: the view is not inside the one that owns the constraint (firstItem)"},
    {"ConstraintAttribute", constraint("firstAttribute=\"depth\""),
     "5:20: \"depth\" is not supported as \"firstAttribute\", which can be: left, right, top, "
     "bottom, leading, trailing, width, height, centerX, centerY, baseline, lastBaseline, "
     "firstBaseline, leftMargin, rightMargin, topMargin, bottomMargin, leadingMargin, "
     "trailingMargin, centerXWithinMargins, centerYWithinMargins"},
    {"ConstraintAlone", constraint("firstAttribute=\"top\""),
     "5:1: only a width or a height can do without \"secondAttribute\""},
    {"ConstraintMixed",
     constraint("firstAttribute=\"leading\" secondItem=\"v\" secondAttribute=\"left\""),
     "5:60: \"firstAttribute\" cannot be compared with it"},
    {"ConstraintDirections",
     constraint("firstAttribute=\"top\" secondItem=\"v\" secondAttribute=\"centerX\""),
     "5:56: \"firstAttribute\" cannot be compared with it"},
    {"ConstraintPriority", constraint("firstAttribute=\"width\" priority=\"1001\""),
     "5:43: a priority is a whole number from 1 to 1000"},
    {"ConstraintRatio", constraint("firstAttribute=\"width\" multiplier=\"1:0\""),
     "5:43: a multiplier is neither 0 nor infinite"},
    {"ConstraintMultiplier", constraint("firstAttribute=\"width\" multiplier=\"1:x\""),
     "5:43: \"x\" is no number (multiplier)"},
    {"ConstraintSymbolic", constraint("firstAttribute=\"width\" symbolic=\"YES\""),
     "5:43: \"symbolic\" of <constraint> is not supported"},
};

const Refusal connections[] = {
    {"OutletNowhere", connection("<outlet property=\"a\" destination=\"x\" id=\"o\"/>"),
     "5:22: nothing has the id \"x\""},
    {"OutletTwice",
     connection("<outlet property=\"a\" destination=\"v\" id=\"o\"/>\n"
                "<outlet property=\"a\" destination=\"v\" id=\"p\"/>"),
     "6:9: a second outlet \"a\" of the same object"},
    {"ActionOfAView",
     connection("<action selector=\"a:\" destination=\"v\" eventType=\"touchUpInside\" id=\"o\"/>"),
     "5:1: only controls have actions"},
    {"OutletCollection",
     connection("<outletCollection property=\"a\" destination=\"v\" id=\"o\"/>"),
     "5:1: <outletCollection> inside of <connections> is not supported"},
    {"Event",
     document(subview("button", "",
                      "<connections>\n<action selector=\"a:\" destination=\"v\" "
                      "eventType=\"shake\" id=\"o\"/></connections>")),
     "7:39: \"shake\" is not supported as \"eventType\", which can be: touchDown, touchDownRepeat, "
     "touchDragInside, touchDragOutside, touchDragEnter, touchDragExit, touchUpInside, "
     "touchUpOutside, touchCancel, valueChanged, primaryActionTriggered, editingDidBegin, "
     "editingChanged, editingDidEnd, editingDidEndOnExit"},
};

std::string nameOf(const testing::TestParamInfo<Refusal>& info) {
  return info.param.name;
}

INSTANTIATE_TEST_SUITE_P(Documents, Refusals, testing::ValuesIn(documents), nameOf);
INSTANTIATE_TEST_SUITE_P(Views, Refusals, testing::ValuesIn(views), nameOf);
INSTANTIATE_TEST_SUITE_P(Details, Refusals, testing::ValuesIn(details), nameOf);
INSTANTIATE_TEST_SUITE_P(Constraints, Refusals, testing::ValuesIn(constraints), nameOf);
INSTANTIATE_TEST_SUITE_P(Connections, Refusals, testing::ValuesIn(connections), nameOf);

TEST(Refusals, CountCharactersNotBytes) {
  EXPECT_EQ(refusal(document(view("userLabel=\"ä\" blur=\"YES\""))),
            "3:28: \"blur\" of <view> is not supported");
}

TEST(Refusals, LeaveOldColorsAlone) {
  std::string text = color(black + "colorSpace=\"calibratedWhite\"");
  text.erase(text.find(" colorMatched=\"YES\""), 19);
  EXPECT_EQ(refusal(text), "compiled");
}

}  // namespace
}  // namespace xib
