#include "tools/nibc/encode/View.h"

#include "tools/nibc/encode/Color.h"
#include "tools/nibc/encode/RuntimeAttributes.h"
#include "tools/nibc/encode/ViewClass.h"
#include "tools/nibc/encode/ViewLayout.h"

namespace xib {
namespace {

constexpr int deepestNesting = 100;  // keeps the recursion from the end of the stack

constexpr Choice contentModes[] = {
    {"scaleToFill", 0}, {"scaleAspectFit", 1}, {"scaleAspectFill", 2},
    {"redraw", 3},      {"center", 4},         {"top", 5},
    {"bottom", 6},      {"left", 7},           {"right", 8},
    {"topLeft", 9},     {"topRight", 10},      {"bottomLeft", 11},
    {"bottomRight", 12}};
constexpr Choice semantics[] = {{"unspecified", 0},
                                {"playback", 1},
                                {"spatial", 2},
                                {"forceLeftToRight", 3},
                                {"forceRightToLeft", 4}};

void ignoreWhatOnlyTheEditorNeeds(Element& element) {
  element.ignore(
      {"userLabel", "colorLabel", "fixedFrame", "ambiguous", "misplaced", "verifyAmbiguity"});
  for (const char* metric : {"simulatedStatusBarMetrics", "simulatedTopBarMetrics",
                             "simulatedBottomBarMetrics", "simulatedOrientationMetrics"})
    element.child("nil", metric);
  element.child("freeformSimulatedSizeMetrics", "simulatedDestinationMetrics");
  element.child("point", "canvasLocation");
}

std::vector<nib::Node*> encodeSubviews(Element& element, const Item* item, Layout& layout) {
  std::vector<nib::Node*> views;
  if (auto subviews = element.child("subviews")) {
    for (Element& each : subviews->children()) views.push_back(encodeView(each, item, layout));
    subviews->finish();
  }
  return views;
}

// Flags are written where UIKit's answer to an absent one would be the wrong one.
void encodeFlags(Element& element, nib::Node& node) {
  node.setBool("UIDeepDrawRect", true);  // as Interface Builder's compiler has it, for every view
  if (element.flag("opaque", true)) node.setBool("UIOpaque", true);
  if (element.flag("hidden", false)) node.setBool("UIHidden", true);
  if (element.flag("multipleTouchEnabled", false)) node.setBool("UIMultipleTouchEnabled", true);
  if (!element.flag("userInteractionEnabled", true))
    node.setBool("UIUserInteractionDisabled", true);
  if (element.flag("autoresizesSubviews", true)) node.setBool("UIAutoresizeSubviews", true);
}

void encodeAppearance(Element& element, nib::Node& node, Layout& layout) {
  const double alpha = element.number("alpha").value_or(1);
  if (alpha < 0 || alpha > 1) element.failAt("alpha", "alpha goes from 0 to 1");
  if (alpha != 1) node.setFloat("UIAlpha", float(alpha));
  if (!element.flag("clearsContextBeforeDrawing", true))
    node.setBool("UIClearsContextBeforeDrawing", false);
  const int mode = element.choice("contentMode", contentModes).value_or(0);
  if (mode != 0) node.setInteger("UIContentMode", mode);
  encodeColorChild(element, "tintColor", node, "UITintColor", layout);
  if (element.flag("clipsSubviews", false)) node.setBool("UIClipsToBounds", true);
}

void encodeSemantics(Element& element, nib::Node& node, Layout& layout) {
  if (const auto semantic = element.choice("semanticContentAttribute", semantics))
    node.setInteger("UIViewSemanticContentAttribute", *semantic);
  if (const auto identifier = element.text("restorationIdentifier"))
    node.setObject("UIRestorationIdentifier", layout.graph.string(*identifier));
}

void encodeViewKeys(Element& element, const Item* item, Layout& layout) {
  nib::Node& node = *item->node;
  encodeGeometry(element, node);
  if (const auto tag = element.integer("tag").value_or(0)) node.setInteger("UITag", tag);
  const auto subviews = encodeSubviews(element, item, layout);
  if (!subviews.empty())
    node.setObject("UISubviews", layout.graph.array(subviews, "NSMutableArray"));
  encodeColorChild(element, "backgroundColor", node, "UIBackgroundColor", layout);
  encodeFlags(element, node);
  encodeAutoresizing(element, node);
  encodeAppearance(element, node, layout);
  encodeLayoutKeys(element, item, layout);
  encodeSemantics(element, node, layout);
}

const ViewClass& classOf(const Element& element) {
  if (const ViewClass* found = viewClassOf(element.name())) return *found;
  element.fail("<" + std::string(element.name()) + "> is not supported as a view");
}

int depthOf(const Item* item) {
  return item == nullptr ? 0 : 1 + depthOf(item->parent);
}

// A class of one's own stands in for the class whose keys these are, which goes on to say what
// to fall back to.
void encodeClassNames(Element& element, nib::Node& node, const char* original, Layout& layout) {
  if (!element.has("customClass")) return;
  node.cls = "UIClassSwapper";
  node.setObject("UIClassName", layout.graph.string(element.requiredText("customClass")));
  node.setObject("UIOriginalClassName", layout.graph.string(original));
}

}  // namespace

nib::Node* encodeView(Element& element, const Item* superview, Layout& layout) {
  const ViewClass& cls = classOf(element);
  if (depthOf(superview) >= deepestNesting) element.fail("views are nested too deeply");
  nib::Node* node = layout.graph.make(cls.name);
  const Item* item = layout.add(element, cls.kind, node, superview);
  ignoreWhatOnlyTheEditorNeeds(element);
  encodeViewKeys(element, item, layout);
  if (cls.encode != nullptr) cls.encode(element, *node, layout);
  encodeClassNames(element, *node, cls.name, layout);
  encodeRuntimeAttributes(element, *node, layout);
  if (auto connections = element.child("connections"))
    layout.unreadConnections.push_back({*connections, item});
  element.finish();
  return node;
}

}  // namespace xib
