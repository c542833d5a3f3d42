// Scenes as documents.
#include <fstream>

#include "simulator/drawing/SvgElement.h"
#include "simulator/drawing/SvgWriter.h"
#include "tests/drawing/DrawingTest.h"

namespace sim {
namespace {

using SvgDocuments = DrawingTest;

// The lines of a document without the outermost element and its style.
std::string inside(const scene::Node& node) {
  const std::string document = svgDocument(node, namedImage);
  const auto start = document.find('\n', document.find('\n') + 1) + 1;
  return document.substr(start, document.rfind("</svg>") - start);
}

scene::Node plain(CGRect bounds) {
  scene::Node node;
  node.attributes.kind = "UIView";
  node.attributes.bounds = bounds;
  return node;
}

TEST_F(SvgDocuments, NumbersAreShort) {
  EXPECT_EQ(svgNumber(0.1 + 0.2), "0.3");
  EXPECT_EQ(svgNumber(12), "12");
  EXPECT_EQ(svgNumber(-0.001), "0");
  EXPECT_EQ(svgNumber(-3.146), "-3.15");
  EXPECT_EQ(svgNumber(1.0 / 3, 5), "0.33333");
  EXPECT_EQ(svgNumber(100000), "100000");
}

TEST_F(SvgDocuments, ReservedCharactersAreEscaped) {
  EXPECT_EQ(svgText("a<b & \"c\">\x01\n"), "a&lt;b &amp; &quot;c&quot;&gt;");
}

TEST_F(SvgDocuments, AreAsLargeAsTheScene) {
  const std::string document = svgDocument(plain(rect(0, 0, 390, 844)), namedImage);
  EXPECT_TRUE(
      document.starts_with("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"390\" height=\"844\" "
                           "viewBox=\"0 0 390 844\" font-family=\"Inter, "))
      << document;
  EXPECT_TRUE(document.ends_with("</style>\n</svg>\n")) << document;
}

TEST_F(SvgDocuments, NodesAreGroups) {
  const auto view = make("UIView", rect(0, 0, 100, 100));
  const auto child = make("UIView", rect(10, 20, 30, 40)), empty = make("UIView");
  add(view, child), add(view, empty);
  send<void, "setBackgroundColor:">(child.get(), color(1, 0.5, 0, 0.5));
  send<void, "setAlpha:">(child.get(), 0.85);
  send<void, "setCornerRadius:">(send<Object, "layer">(child.get()), 100.0);
  EXPECT_EQ(inside(drawn(view)),
            "  <g class=\"UIView\" transform=\"translate(10 20)\" opacity=\"0.85\">\n"
            "    <rect width=\"30\" height=\"40\" rx=\"15\" fill=\"#ff8000\" "
            "fill-opacity=\"0.5\"/>\n"
            "  </g>\n");
}

TEST_F(SvgDocuments, ClipsCutWhatIsBelow) {
  const auto view = make("UIView", rect(0, 0, 100, 100)),
             child = make("UIView", rect(50, 0, 100, 9));
  send<void, "setClipsToBounds:">(view.get(), true);
  EXPECT_EQ(inside(drawn(view)), "");
  add(view, child);
  send<void, "setBackgroundColor:">(child.get(), color(0, 0, 1));
  EXPECT_EQ(inside(drawn(view)),
            "  <clipPath id=\"clip1\"><rect width=\"100\" height=\"100\"/></clipPath>\n"
            "  <g clip-path=\"url(#clip1)\">\n"
            "    <g class=\"UIView\" transform=\"translate(50 0)\">\n"
            "      <rect width=\"100\" height=\"9\" fill=\"#0000ff\"/>\n"
            "    </g>\n"
            "  </g>\n");
}

TEST_F(SvgDocuments, BordersLieInside) {
  auto node = plain(rect(0, 0, 20, 10));
  node.attributes.cornerRadius = 4;
  node.attributes.border = {2, {0, 0, 0, 1}};
  EXPECT_EQ(inside(node),
            "  <rect x=\"1\" y=\"1\" width=\"18\" height=\"8\" rx=\"3\" fill=\"none\" "
            "stroke=\"#000000\" stroke-width=\"2\"/>\n");
}

TEST_F(SvgDocuments, TextStandsOnItsBaselines) {
  const auto label = make("UILabel", rect(0, 0, 100, 50));
  send<void, "setText:">(label.get(), string("Tom & Ann\nsing"));
  send<void, "setNumberOfLines:">(label.get(), 0L);
  send<void, "setTextAlignment:">(label.get(), 1L);
  EXPECT_EQ(inside(drawn(label)),
            "  <text x=\"50\" y=\"20.9\" font-size=\"17\" letter-spacing=\"-0.22\" "
            "text-anchor=\"middle\" fill=\"#000000\">Tom &amp; Ann</text>\n"
            "  <text x=\"50\" y=\"41.19\" font-size=\"17\" letter-spacing=\"-0.22\" "
            "text-anchor=\"middle\" fill=\"#000000\">sing</text>\n");
}

TEST_F(SvgDocuments, StretchedTextBeginsWhereWeSay) {
  const auto view = make("UIView"), label = make("UILabel", rect(0, 0, 100, 20));
  add(view, label);
  send<void, "setText:">(label.get(), string("23"));
  send<void, "setTextAlignment:">(label.get(), 2L);
  send<void, "setTransform:">(label.get(), CGAffineTransform{1, 0, 0, 0.5, 0, 0});
  EXPECT_EQ(inside(drawn(view)),
            "  <g class=\"UILabel\" transform=\"matrix(1 0 0 0.5 0 5)\">\n"
            "    <text x=\"79.33\" y=\"16.04\" font-size=\"17\" letter-spacing=\"-0.22\" "
            "fill=\"#000000\">23</text>\n"
            "  </g>\n");
}

TEST_F(SvgDocuments, LargeTextHasAFaceOfItsOwn) {
  const auto label = make("UILabel", rect(0, 0, 100, 40));
  send<void, "setText:">(label.get(), string("8"));
  send<void, "setFont:">(label.get(), send<Object, "systemFontOfSize:">(cls("UIFont"), 20.0));
  EXPECT_EQ(inside(drawn(label)),
            "  <text class=\"display\" x=\"0\" y=\"27.11\" font-size=\"20\" "
            "fill=\"#000000\">8</text>\n");
}

TEST_F(SvgDocuments, TextFromTheRightSaysSo) {
  const auto label = make("UILabel", rect(0, 0, 100, 20));
  send<void, "setText:">(label.get(), string("دقائق"));
  send<void, "setTextAlignment:">(label.get(), 2L);
  EXPECT_EQ(inside(drawn(label)),
            "  <text x=\"100\" y=\"16.04\" font-size=\"17\" direction=\"rtl\" "
            "fill=\"#000000\">دقائق</text>\n");
}

TEST_F(SvgDocuments, TemplatesHaveTheirTintOnce) {
  auto node = plain(rect(0, 0, 20, 20));
  node.attributes.content =
      scene::Image{"/icon@3x.png", rect(0, 0, 10, 10), scene::Color{0, 0.5, 1, 1}};
  auto parent = plain(rect(0, 0, 20, 20));
  parent.children = {node, node};
  const std::string image =
      "    <image width=\"10\" height=\"10\" preserveAspectRatio=\"none\" filter=\"url(#tint1)\" "
      "href=\"/icon@3x.png\"/>\n";
  EXPECT_EQ(inside(parent),
            "  <g class=\"UIView\">\n"
            "    <filter id=\"tint1\" color-interpolation-filters=\"sRGB\"><feColorMatrix "
            "values=\"0 0 0 0 0 0 0 0 0 0.5 0 0 0 0 1 0 0 0 1 0\"/></filter>\n" +
                image + "  </g>\n  <g class=\"UIView\">\n" + image + "  </g>\n");
}

TEST_F(SvgDocuments, MirroredImagesStayInTheirFrame) {
  auto node = plain(rect(0, 0, 40, 20));
  node.attributes.content = scene::Image{"/icon@3x.png", rect(10, 0, 20, 20), {}, true};
  EXPECT_EQ(inside(node),
            "  <image x=\"10\" width=\"20\" height=\"20\" preserveAspectRatio=\"none\" "
            "transform=\"translate(40) scale(-1 1)\" href=\"/icon@3x.png\"/>\n");
}

TEST_F(SvgDocuments, ImagesMayBeEmbedded) {
  std::ofstream(phone.file("/three.png"), std::ios::binary) << "abc";
  std::ofstream(phone.file("/four.png"), std::ios::binary) << "abcd";
  EXPECT_EQ(embeddedImage("/three.png"), "data:image/png;base64,YWJj");
  EXPECT_EQ(embeddedImage("/four.png"), "data:image/png;base64,YWJjZA==");
  EXPECT_THROW(embeddedImage("/none.png"), std::runtime_error);
}

TEST_F(SvgDocuments, ShapesAreFilledAndStroked) {
  auto node = plain(rect(0, 0, 20, 20));
  scene::Shape shape;
  using Kind = PathElement::Kind;
  shape.path = {{Kind::move, {{{1, 2}}}},
                {Kind::line, {{{3, 4.5}}}},
                {Kind::cubic, {{{1, 1}, {2, 2}, {3, 3}}}},
                {Kind::close}};
  shape.rule = FillRule::evenOdd;
  shape.fill = scene::Color{1, 1, 1, 1};
  shape.stroke = scene::Stroke{{0, 0, 0, 0.5}, 2, LineCap::round, LineJoin::round, 10, {3, 1}, 0.5};
  node.attributes.content = shape;
  EXPECT_EQ(inside(node),
            "  <path d=\"M1 2 L3 4.5 C1 1 2 2 3 3 Z\" fill=\"#ffffff\" fill-rule=\"evenodd\" "
            "stroke=\"#000000\" stroke-opacity=\"0.5\" stroke-width=\"2\" "
            "stroke-linecap=\"round\" stroke-linejoin=\"round\" stroke-dasharray=\"3 1\" "
            "stroke-dashoffset=\"0.5\"/>\n");
}

TEST_F(SvgDocuments, GradientsRunFromTopToBottom) {
  const Object layer = send<Object, "layer">(cls("CAGradientLayer"));
  send<void, "setFrame:">(layer, rect(0, 0, 20, 10));
  send<void, "setColors:">(layer, array({send<Object, "CGColor">(color(1, 0, 0)),
                                         send<Object, "CGColor">(color(0, 0, 1, 0.5))}));
  EXPECT_EQ(inside(sceneOf(CALayer::of(layer), 0)),
            "  <linearGradient id=\"gradient1\" x1=\"0.5\" y1=\"0\" x2=\"0.5\" y2=\"1\">\n"
            "    <stop offset=\"0\" stop-color=\"#ff0000\"/>\n"
            "    <stop offset=\"1\" stop-color=\"#0000ff\" stop-opacity=\"0.5\"/>\n"
            "  </linearGradient>\n"
            "  <rect width=\"20\" height=\"10\" fill=\"url(#gradient1)\"/>\n");
}

TEST_F(SvgDocuments, MasksCutByTheirAlpha) {
  auto node = plain(rect(0, 0, 20, 20)), parent = node, mask = node;
  node.attributes.background = {1, 0, 0, 1};
  mask.attributes.background = {0, 0, 0, 1};
  node.mask = std::make_shared<const scene::Node>(mask);
  parent.children = {node};
  EXPECT_EQ(inside(parent),
            "  <mask id=\"mask1\" mask-type=\"alpha\" maskUnits=\"userSpaceOnUse\" x=\"-10000\" "
            "y=\"-10000\" width=\"20000\" height=\"20000\">\n"
            "    <g class=\"UIView\">\n"
            "      <rect width=\"20\" height=\"20\" fill=\"#000000\"/>\n"
            "    </g>\n"
            "  </mask>\n"
            "  <g class=\"UIView\" mask=\"url(#mask1)\">\n"
            "    <rect width=\"20\" height=\"20\" fill=\"#ff0000\"/>\n"
            "  </g>\n");
}

TEST_F(SvgDocuments, DissolvingPicturesLieOverEachOther) {
  auto node = plain(rect(0, 0, 20, 20)), before = node;
  node.attributes.background = {1, 0, 0, 1};
  before.attributes.background = {0, 1, 0, 1};
  node.before = std::make_shared<const scene::Node>(before);
  node.beforeOpacity = 0.75;
  EXPECT_EQ(inside(node),
            "  <g opacity=\"0.25\">\n"
            "    <rect width=\"20\" height=\"20\" fill=\"#ff0000\"/>\n"
            "  </g>\n"
            "  <g opacity=\"0.75\">\n"
            "    <rect width=\"20\" height=\"20\" fill=\"#00ff00\"/>\n"
            "  </g>\n");
}

}  // namespace
}  // namespace sim
