#include "tools/nibc/encode/Connections.h"

#include <set>

#include "tools/nibc/nib/Quoting.h"

namespace xib {
namespace {

constexpr Choice events[] = {
    {"touchDown", 1},           {"touchDownRepeat", 2},           {"touchDragInside", 4},
    {"touchDragOutside", 8},    {"touchDragEnter", 16},           {"touchDragExit", 32},
    {"touchUpInside", 64},      {"touchUpOutside", 128},          {"touchCancel", 256},
    {"valueChanged", 4096},     {"primaryActionTriggered", 8192}, {"editingDidBegin", 65536},
    {"editingChanged", 131072}, {"editingDidEnd", 262144},        {"editingDidEndOnExit", 524288}};

nib::Node* connection(const char* cls, const std::string& label, const Item& source,
                      const Item& destination, Layout& layout) {
  nib::Node* made = layout.graph.make(cls);
  made->setObject("UILabel", layout.graph.string(label));
  made->setObject("UISource", source.node);
  made->setObject("UIDestination", destination.node);
  layout.connections.push_back(made);
  return made;
}

void encodeOutlet(Element& outlet, const Item& source, Layout& layout) {
  connection("UIRuntimeOutletConnection", outlet.requiredText("property"), source,
             layout.find(outlet, "destination"), layout);
}

void encodeAction(Element& action, const Item& source, Layout& layout) {
  if (source.kind != Item::control) action.fail("only controls have actions");
  const Item& target = layout.find(action, "destination");
  if (target.kind == Item::constraint)
    action.failAt("destination", "a constraint cannot receive actions");
  nib::Node* made = connection("UIRuntimeEventConnection", action.requiredText("selector"), source,
                               target, layout);
  action.requiredText("eventType");
  made->setInteger("UIEventMask", *action.choice("eventType", events));
}

}  // namespace

void encodeConnections(UnreadConnections connections, Layout& layout) {
  std::set<std::string> outlets;
  for (Element& each : connections.element.children()) {
    each.requiredText("id");
    if (each.name() == "outlet") {
      encodeOutlet(each, *connections.source, layout);
      const std::string property = each.requiredText("property");
      if (!outlets.insert(property).second)
        each.failAt("property", "a second outlet " + nib::quoted(property) + " of the same object");
    } else if (each.name() == "action") {
      encodeAction(each, *connections.source, layout);
    } else {
      each.fail("<" + std::string(each.name()) + "> inside of <connections> is not supported");
    }
    each.finish();
  }
  connections.element.finish();
}

}  // namespace xib
