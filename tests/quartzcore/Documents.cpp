// What documents of layers become.
#include "simulator/foundation/Kind.h"
#include "tests/quartzcore/PackageTest.h"

namespace sim {
namespace {

using Documents = PackageTest;

Object child(Object layer, unsigned long index) {
  return send<Object, "objectAtIndex:">(send<Object, "sublayers">(layer), index);
}
std::string described(Object object) {
  return description(object);
}

TEST_F(Documents, GiveALayerItsPropertiesByTheirTypes) {
  const auto layer = read(
      "<CALayer name=\"root\" bounds=\"1 2 30 40\" position=\"5 6\" anchorPoint=\"0 1\""
      " opacity=\"0.5\" hidden=\"1\" masksToBounds=\"0\" cornerRadius=\"3\""
      " transform=\"scale(2)\" backgroundColor=\"1 0 0\"/>");
  EXPECT_EQ(text(send<Object, "name">(layer.get())), "root");
  EXPECT_EQ((send<CGRect, "bounds">(layer.get())), (CGRect{{1, 2}, {30, 40}}));
  EXPECT_EQ((send<CGPoint, "position">(layer.get())), (CGPoint{5, 6}));
  EXPECT_EQ((send<CGPoint, "anchorPoint">(layer.get())), (CGPoint{0, 1}));
  EXPECT_EQ((send<float, "opacity">(layer.get())), 0.5F);
  EXPECT_TRUE((send<bool, "isHidden">(layer.get())));
  EXPECT_FALSE((send<bool, "masksToBounds">(layer.get())));
  EXPECT_EQ((send<double, "cornerRadius">(layer.get())), 3);
  EXPECT_EQ((send<CGAffineTransform, "affineTransform">(layer.get())).a, 2);
  EXPECT_EQ(described(send<Object, "backgroundColor">(layer.get())),
            "UIExtendedSRGBColorSpace 1 0 0 1");
}

TEST_F(Documents, GiveAShapeWhatARendererReads) {
  const auto layer = read(
      "<CAShapeLayer path=\"0 0 m 9 9 l\" fillColor=\"1 1 1\" fillRule=\"even-odd\""
      " lineWidth=\"3\" lineCap=\"round\" lineJoin=\"bevel\" miterLimit=\"4\""
      " strokeStart=\"0.25\" strokeEnd=\"0.75\" lineDashPattern=\"2 1\" lineDashPhase=\"5\">"
      "<strokeColor opacity=\"0.5\" value=\"0 1 0\"/></CAShapeLayer>");
  const CAShapeLayer& shape = CAShapeLayer::of(layer.get());
  EXPECT_EQ(shape.elements().size(), 2U);
  EXPECT_EQ(*shape.fill(), (ColorComponents{{1, 1, 1, 1}, false}));
  EXPECT_EQ(*shape.stroke(), (ColorComponents{{0, 1, 0, 0.5}, false}));
  EXPECT_EQ(shape.rule(), FillRule::evenOdd);
  EXPECT_EQ(shape.cap(), LineCap::round);
  EXPECT_EQ(shape.join(), LineJoin::bevel);
  EXPECT_EQ(shape.lineWidth, 3);
  EXPECT_EQ(shape.miterLimit, 4);
  EXPECT_EQ(shape.strokeStart, 0.25);
  EXPECT_EQ(shape.strokeEnd, 0.75);
  EXPECT_EQ(shape.lineDashPhase, 5);
  EXPECT_EQ((send<unsigned long, "count">(shape.lineDashPattern.get())), 2UL);
}

TEST_F(Documents, LeaveAShapeFilledInBlackThatSaysNothing) {
  const auto layer = read("<CAShapeLayer/>");
  const CAShapeLayer& shape = CAShapeLayer::of(layer.get());
  EXPECT_EQ(*shape.fill(), (ColorComponents{{0, 0, 0, 1}, true}));
  EXPECT_EQ(shape.stroke(), nullptr);
  EXPECT_TRUE(shape.elements().empty());
  EXPECT_EQ(shape.rule(), FillRule::nonZero);
  EXPECT_EQ(shape.cap(), LineCap::butt);
  EXPECT_EQ(shape.join(), LineJoin::miter);
}

TEST_F(Documents, KeepTheOrderOfSublayers) {
  const auto layer = read(
      "<CALayer><sublayers><CALayer name=\"a\"><sublayers><CALayer name=\"b\"/></sublayers>"
      "</CALayer><CAShapeLayer name=\"c\"/></sublayers></CALayer>");
  EXPECT_EQ(text(send<Object, "name">(child(layer, 0))), "a");
  EXPECT_EQ(text(send<Object, "name">(child(child(layer, 0), 0))), "b");
  EXPECT_EQ(text(send<Object, "name">(child(layer, 1))), "c");
  EXPECT_TRUE(isA<CAShapeLayer>(child(layer, 1)));
  EXPECT_EQ((send<Object, "superlayer">(child(layer, 0))), layer.get());
}

TEST_F(Documents, HaveALongerSpelling) {
  const auto layer = read(
      "<o type=\"CALayer\"><p key=\"bounds\" value=\"0 0 8 8\"/><p key=\"name\">root</p>"
      "<p key=\"sublayers\"><o type=\"CAShapeLayer\"><p key=\"path\">1 1 m</p></o></p></o>");
  EXPECT_EQ((send<CGRect, "bounds">(layer.get())), (CGRect{{0, 0}, {8, 8}}));
  EXPECT_EQ(text(send<Object, "name">(layer.get())), "root");
  EXPECT_EQ(described(send<Object, "path">(child(layer, 0))), "1 1 m");
}

TEST_F(Documents, TakeAMaskInBothForms) {
  const auto inside = read("<CALayer><mask><CAShapeLayer name=\"m\"/></mask></CALayer>");
  EXPECT_TRUE(isA<CAShapeLayer>(send<Object, "mask">(inside.get())));
  const auto typed = read("<CALayer><mask type=\"CALayer\" name=\"m\"/></CALayer>");
  EXPECT_EQ(text(send<Object, "name">(send<Object, "mask">(typed.get()))), "m");
}

TEST_F(Documents, KeepValuesOfKeysWithoutAccessors) {
  const auto layer = read(
      "<CALayer allowsGroupOpacity=\"1\" contentsFormat=\"RGBA8\"><tag type=\"CGPoint\""
      " value=\"1 2\"/></CALayer>");
  const auto valueFor = [&](const char* key) {
    return send<Object, "valueForKey:">(layer.get(), string(key));
  };
  EXPECT_EQ(notation(valueFor("allowsGroupOpacity")), "1");
  EXPECT_EQ(notation(valueFor("contentsFormat")), "\"RGBA8\"");
  EXPECT_EQ(described(valueFor("tag")), "{1, 2}");
  EXPECT_FALSE(valueFor("somethingElse"));
}

TEST_F(Documents, IgnoreWhatStatesDoNotKnow) {
  const auto layer =
      read("<CALayer><states><CAState name=\"on\" editorColor=\"blue\"/></states></CALayer>");
  EXPECT_TRUE((send<Object, "stateWithName:">(layer.get(), string("on"))));
}

TEST_F(Documents, MayBeginWithAByteOrderMarkAndHoldComments) {
  EXPECT_TRUE(
      caml::read("\xEF\xBB\xBF<?xml version=\"1.0\"?><!-- a --><caml><!-- b --><CALayer>"
                 "<!-- c --></CALayer></caml>",
                 ""));
}

TEST_F(Documents, FindImagesInThePackage) {
  // The smallest picture: of one pixel.
  const std::string png(
      "\x89PNG\r\n\x1a\n\0\0\0\rIHDR\0\0\0\1\0\0\0\1\x08\x06\0\0\0\x1f\x15\xc4\x89", 33);
  write("assets/dot.png", png);
  const auto layer =
      read("<CALayer><contents><CGImage src=\"assets/dot.png\"/></contents></CALayer>");
  const Object image = send<Object, "contents">(layer.get());
  EXPECT_EQ((send<CGSize, "size">(image)), (CGSize{1, 1}));
  const auto typed = read("<CALayer><contents type=\"CGImage\" src=\"assets/dot.png\"/></CALayer>");
  EXPECT_TRUE((send<Object, "contents">(typed.get())));
}

}  // namespace
}  // namespace sim
