// Documents that cannot be read: each has an error with its place, and nothing is left behind.
#include "tests/quartzcore/PackageTest.h"

namespace sim {
namespace {

using Refusals = PackageTest;

// "3:5: expected …"; "none" when the document can be read.
std::string problemOf(const std::string& whole) {
  try {
    caml::read(whole, packageFolder);
  } catch (const caml::Error& problem) {
    return caml::lineAndColumn(whole, problem.offset) + ": " + problem.what();
  }
  return "none";
}

// Of a document whose second line is this.
std::string problemIn(const std::string& inner) {
  return problemOf("<caml>\n" + inner + "\n</caml>");
}

TEST_F(Refusals, OfWhatIsNoDocument) {
  EXPECT_EQ(problemOf(""), "1:1: expected XML: No document element found");
  EXPECT_EQ(problemOf("hello"), "1:6: expected XML: No document element found");
  EXPECT_EQ(problemOf("<caml>\n  <CALayer>"), "2:11: expected XML: Start-end tags mismatch");
  EXPECT_EQ(problemOf("<svg/>"), "1:2: expected <caml>, found <svg>");
  EXPECT_EQ(problemOf("<caml/>"), "1:2: expected an object in <caml>");
  EXPECT_EQ(problemOf("<caml><CALayer/></caml>\n<caml/>"), "2:2: expected the end of the document");
  EXPECT_EQ(problemIn("<CALayer/><CALayer/>"),
            "2:12: expected one object in <caml>, found a second one");
  EXPECT_EQ(problemOf(std::string("<caml>\0</caml>", 14)), "1:7: expected text, found a zero byte");
  EXPECT_EQ(problemOf("<caml>\xFF</caml>"), "1:1: expected UTF-8");
}

// Where the parser misses something it may point behind the last byte.
TEST_F(Refusals, PointIntoADocumentThatIsCutOff) {
  const std::string whole = "<caml name=\"n\"><CALayer bounds=\"0 0 1 1\"></CALayer></caml>";
  for (std::size_t length = 0; length < whole.size(); ++length) {
    try {
      caml::read(whole.substr(0, length), packageFolder);
      ADD_FAILURE() << "read " << whole.substr(0, length);
    } catch (const caml::Error& problem) {
      EXPECT_LE(problem.offset, length) << whole.substr(0, length);
    }
  }
}

TEST_F(Refusals, OfClassesThatAreAbsentOrNotForDocuments) {
  EXPECT_EQ(problemIn("<CANoSuchLayer/>"), "2:2: there is no class \"CANoSuchLayer\"");
  EXPECT_EQ(problemIn("<LKNoSuchLayer/>"), "2:2: there is no class \"CANoSuchLayer\"");
  EXPECT_EQ(problemIn("<UIWindow/>"), "2:2: a UIWindow cannot be read from a document");
  EXPECT_EQ(problemIn("<o/>"), "2:2: there is no class \"o\"");
}

TEST_F(Refusals, OfValuesOfAnotherType) {
  EXPECT_EQ(problemIn("<CALayer bounds=\"0 0 40\"/>"),
            "2:2: expected a rectangle of 4 numbers, found \"0 0 40\"");
  EXPECT_EQ(problemIn("<CALayer position=\"1\"/>"),
            "2:2: expected a point of 2 numbers, found \"1\"");
  EXPECT_EQ(problemIn("<CALayer opacity=\"high\"/>"), "2:2: expected a number, found \"high\"");
  EXPECT_EQ(problemIn("<CALayer hidden=\"maybe\"/>"), "2:2: expected 0 or 1, found \"maybe\"");
  EXPECT_EQ(problemIn("<CALayer sublayers=\"1\"/>"),
            "2:2: expected objects of the class CALayer, found \"1\"");
  EXPECT_EQ(problemIn("<CALayer mask=\"#1\"/>"), "2:2: expected a CALayer, found \"#1\"");
  EXPECT_EQ(problemIn("<CAShapeLayer><fillColor type=\"string\" value=\"red\"/></CAShapeLayer>"),
            "2:16: expected a colour as fillColor");
  EXPECT_EQ(problemIn("<CAShapeLayer><fillColor value=\"1\" opacity=\"2\"/></CAShapeLayer>"),
            "2:16: expected an opacity from 0 to 1, found \"2\"");
  EXPECT_EQ(problemIn("<CALayer><mask><CAState/></mask></CALayer>"),
            "2:11: expected a CALayer as mask");
  EXPECT_EQ(problemIn("<CALayer><mask><CALayer/><CALayer/></mask></CALayer>"),
            "2:27: expected one value, found a second one");
  EXPECT_EQ(problemIn("<CALayer><sublayers><CAState/></sublayers></CALayer>"),
            "2:11: expected objects of the class CALayer as sublayers");
  EXPECT_EQ(problemIn("<CALayer><contents type=\"string\" value=\"x\"/></CALayer>"),
            "2:11: expected a CGImage as contents");
}

TEST_F(Refusals, OfPropertiesThatAreNotForDocuments) {
  EXPECT_EQ(problemIn("<CALayer delegate=\"x\"/>"),
            "2:2: expected a property that can be read here, found \"delegate\"");
  EXPECT_EQ(problemIn("<CALayer><CALayer/></CALayer>"),
            "2:11: expected a property, found an object: \"CALayer\"");
  EXPECT_EQ(problemIn("<CALayer><p value=\"x\"/></CALayer>"),
            "2:11: expected the name of a property");
}

TEST_F(Refusals, OfInstanceVariables) {
  Class layer = objc_allocateClassPair(cls("CALayer"), "LayerWithVariable", 0);
  class_addIvar(layer, "_depth", sizeof(double), 3, "d");
  objc_registerClassPair(layer);
  EXPECT_EQ(problemIn("<LayerWithVariable width=\"1\"/>"), "none");
  EXPECT_EQ(problemIn("<LayerWithVariable depth=\"1\"/>"),
            "2:2: expected a property that can be read here, found \"depth\"");
}

TEST_F(Refusals, OfImagesThatAreNotThere) {
  const auto contents = [](const std::string& source) {
    return "<CALayer><contents><CGImage src=\"" + source + "\"/></contents></CALayer>";
  };
  EXPECT_EQ(problemIn(contents("none.png")), "2:21: there is no image \"none.png\"");
  EXPECT_EQ(problemIn(contents("/etc/x.png")),
            "2:21: expected a src inside the package, found \"/etc/x.png\"");
  EXPECT_EQ(problemIn(contents("../x.png")),
            "2:21: expected a src inside the package, found \"../x.png\"");
  EXPECT_EQ(problemIn(contents("")), "2:21: expected a src inside the package, found \"\"");
}

std::string withState(const std::string& element) {
  return "<CALayer id=\"#1\" name=\"root\"><states><CAState name=\"on\"><elements>" + element +
         "</elements></CAState></states></CALayer>";
}
std::string settingOf(const std::string& keyPath, const std::string& value) {
  return withState("<CAStateSetValue targetId=\"#1\" keyPath=\"" + keyPath + "\">" + value +
                   "</CAStateSetValue>");
}

TEST_F(Refusals, OfStatesThatCouldNotBeTakenOn) {
  EXPECT_EQ(problemIn(settingOf("opacity", "<value type=\"string\" value=\"x\"/>")),
            "2:68: expected a number for opacity");
  EXPECT_EQ(problemIn(settingOf("opacity", "")), "2:68: expected a number for opacity");
  EXPECT_EQ(problemIn(settingOf("", "<value value=\"1\"/>")),
            "2:68: expected the name of a property");
  EXPECT_EQ(problemIn(settingOf("position.z", "<value value=\"1\"/>")),
            "2:68: expected the key path of a property, found \"position.z\"");
  EXPECT_EQ(problemIn(settingOf("delegate.layer", "<value value=\"1\"/>")),
            "2:68: expected the key path of a property, found \"delegate.layer\"");
  EXPECT_EQ(problemIn(settingOf("mask", "<value type=\"CALayer\"/>")),
            "2:68: expected a value to be set, found \"mask\"");
  EXPECT_EQ(problemIn(withState("<CAStateSetValue keyPath=\"opacity\"/>")),
            "2:68: there is no layer with the id \"\"");
  EXPECT_EQ(problemIn(withState("<CAStateSetValue targetId=\"#9\" keyPath=\"opacity\"/>")),
            "2:68: there is no layer with the id \"#9\"");
  EXPECT_EQ(problemIn(withState("<CALayer/>")),
            "2:58: expected objects of the class CAStateElement as elements");
}

TEST_F(Refusals, OfAnIdThatOccursTwice) {
  EXPECT_EQ(problemIn("<CALayer id=\"#1\"><sublayers><CALayer id=\"#1\"/></sublayers></CALayer>"),
            "2:30: expected an id of its own, found another \"#1\"");
}

std::string nested(int depth) {
  std::string inner;
  for (int i = 0; i < depth; ++i) inner += "<CALayer><sublayers>";
  for (int i = 0; i < depth; ++i) inner += "</sublayers></CALayer>";
  return inner;
}

TEST_F(Refusals, BeyondTheLimits) {
  EXPECT_EQ(problemIn(nested(32)), "none");
  EXPECT_NE(problemIn(nested(33)).find("expected at most 64 objects in one another"),
            std::string::npos);
  EXPECT_NE(problemIn(nested(50'000)).find("expected at most 64 objects in one another"),
            std::string::npos);
  std::string many;
  for (int i = 0; i < 10'000; ++i) many += "<CALayer/>";
  EXPECT_NE(problemIn("<CALayer><sublayers>" + many + "</sublayers></CALayer>")
                .find("expected at most 10000 objects"),
            std::string::npos);
  const std::string large(5 << 20, ' ');
  EXPECT_NE(problemIn(large).find("expected at most 4 MB"), std::string::npos);
}

TEST_F(Refusals, QuoteLongWordsInPart) {
  EXPECT_EQ(problemIn("<CALayer opacity=\"" + std::string(1000, 'x') + "\"/>"),
            "2:2: expected a number, found \"" + std::string(40, 'x') + "…\"");
}

}  // namespace
}  // namespace sim
