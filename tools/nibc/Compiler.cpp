#include "tools/nibc/Compiler.h"

#include <utility>

#include "tools/nibc/encode/Connections.h"
#include "tools/nibc/encode/Constraint.h"
#include "tools/nibc/encode/Image.h"
#include "tools/nibc/encode/View.h"
#include "tools/nibc/nib/Quoting.h"
#include "tools/nibc/xib/Document.h"

namespace xib {
namespace {

constexpr const char* documentType = "com.apple.InterfaceBuilder3.CocoaTouch.XIB";

void expectValue(Element& element, const char* attribute, const char* value) {
  const std::string found = element.requiredText(attribute);
  if (found != value)
    element.failAt(attribute, nib::quoted(attribute) + " must be " + nib::quoted(value) + ", not " +
                                  nib::quoted(found));
}

void readDocumentAttributes(Element& document, Layout& layout) {
  if (document.name() != "document")
    document.fail("the outermost element must be <document>, not <" + std::string(document.name()) +
                  ">");
  expectValue(document, "type", documentType);
  expectValue(document, "version", "3.0");
  layout.colorMatched = document.flag("colorMatched", false);
  document.ignore({"toolsVersion", "systemVersion", "targetRuntime", "propertyAccessControl",
                   "useAutolayout", "useTraitCollections"});
  if (document.flag("useSafeAreas", false))
    document.failAt("useSafeAreas", "safe areas are not supported");
  document.ignoreChildren({"device", "dependencies", "customFonts"});
}

void encodePlaceholder(Element& placeholder, Layout& layout) {
  static constexpr Choice identifiers[] = {{"IBFilesOwner", 0}, {"IBFirstResponder", 1}};
  const std::string identifier = placeholder.requiredText("placeholderIdentifier");
  placeholder.choice("placeholderIdentifier", identifiers);
  nib::Node* proxy = layout.graph.make("UIProxyObject");
  proxy->setObject("UIProxiedObjectIdentifier", layout.graph.string(identifier));
  const Item* item = layout.add(placeholder, Item::proxy, proxy, nullptr);
  layout.topLevel.push_back(proxy);
  placeholder.ignore({"userLabel", "customClass", "sceneMemberID"});
  if (auto connections = placeholder.child("connections"))
    layout.unreadConnections.push_back({*connections, item});
  placeholder.finish();
}

void encodeObjects(Element& document, Layout& layout) {
  auto objects = document.child("objects");
  if (!objects) document.fail("the document has no <objects>");
  for (Element& each : objects->children()) {
    if (each.name() == "placeholder")
      encodePlaceholder(each, layout);
    else
      layout.topLevel.push_back(encodeView(each, nullptr, layout));
  }
  objects->finish();
}

nib::Node* root(Layout& layout) {
  nib::Graph& graph = layout.graph;
  nib::Node* made = graph.make("NSObject");
  made->setObject("UINibTopLevelObjectsKey", graph.array(layout.topLevel));
  made->setObject("UINibObjectsKey", graph.array(layout.objects));
  made->setObject("UINibConnectionsKey", graph.array(layout.connections));
  made->setObject("UINibVisibleWindowsKey", graph.array({}));
  made->setObject("UINibAccessibilityConfigurationsKey", graph.array({}));
  made->setObject("UINibTraitStorageListsKey", graph.array({}));
  made->setObject("UINibKeyValuePairsKey", graph.array(layout.keyValuePairs));
  return made;
}

}  // namespace

nib::Archive compile(std::string text) {
  const Document document(std::move(text));
  Element element = document.root();
  Layout layout;
  readDocumentAttributes(element, layout);
  readResources(element, layout);
  encodeObjects(element, layout);
  element.finish();
  for (const UnreadConstraint& each : layout.unreadConstraints) encodeConstraint(each, layout);
  for (const UnreadConnections& each : layout.unreadConnections) encodeConnections(each, layout);
  return nib::Graph::archive(root(layout));
}

}  // namespace xib
