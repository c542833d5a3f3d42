#include "tools/nibc/encode/Image.h"

#include "tools/nibc/nib/Quoting.h"

namespace xib {
namespace {

void readResource(Element& resource, Layout& layout) {
  if (resource.name() == "image") {
    const std::string name = resource.requiredText("name");
    layout.imageSizes[name] = {resource.requiredNumber("width"), resource.requiredNumber("height")};
    resource.finish();
  } else if (resource.name() == "systemColor") {
    const std::string name = resource.requiredText("name");
    auto color = resource.child("color");
    if (!color) resource.fail("a <systemColor> needs a <color>");
    layout.systemColors.emplace(name, *color);
    resource.finish();
  } else {
    resource.fail("<" + std::string(resource.name()) + "> inside of <resources> is not supported");
  }
}

}  // namespace

void readResources(Element& document, Layout& layout) {
  auto resources = document.child("resources");
  if (!resources) return;
  for (Element& each : resources->children()) readResource(each, layout);
  resources->finish();
}

void encodeImage(Element& element, const char* attribute, nib::Node& node, const char* nibKey,
                 Layout& layout) {
  if (!element.has(attribute)) return;
  const std::string name = element.requiredText(attribute);
  const auto known = layout.imageSizes.find(name);
  if (known == layout.imageSizes.end())
    element.failAt(attribute, "<resources> has no image " + nib::quoted(name));
  nib::Node* placeholder = layout.graph.make("UIImageNibPlaceholder");
  placeholder->setFloat("UIImageWidth", float(known->second.first));
  placeholder->setFloat("UIImageHeight", float(known->second.second));
  placeholder->setObject("UIResourceName", layout.graph.string(name));
  node.setObject(nibKey, placeholder);
}

}  // namespace xib
