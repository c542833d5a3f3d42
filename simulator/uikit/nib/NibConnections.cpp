#include "simulator/uikit/nib/NibConnections.h"

#include "objc/Message.h"
#include "simulator/foundation/Exception.h"
#include "simulator/foundation/Values.h"

namespace sim {
namespace {

using objc::Object;

constexpr const char* outletClass = "UIRuntimeOutletConnection";
constexpr const char* actionClass = "UIRuntimeEventConnection";

}  // namespace

NibConnections::NibConnections(NibDecoding& decoding, const std::vector<std::uint32_t>& connections)
    : decoding_(decoding) {
  for (const std::uint32_t each : connections) {
    const std::string& cls = decoding.className(each);
    if (cls != outletClass && cls != actionClass)
      raiseException("NSInvalidUnarchiveOperationException",
                     "Could not instantiate class named " + cls);
    const auto end = [&](const char* key) {
      const auto found = decoding.reference(each, key);
      return found ? decoding.object(*found) : Object();
    };
    connections_.push_back({each, end("UISource"), end("UIDestination")});
  }
}

void NibConnections::connect() {
  for (const Connection& each : connections_) {
    if (decoding_.className(each.index) == outletClass)
      connectOutlet(each);
    else
      connectAction(each);
  }
}

void NibConnections::connectOutlet(const Connection& outlet) {
  objc::send<void, "setValue:forKeyPath:">(outlet.source, outlet.destination,
                                           string(decoding_.text(outlet.index, "UILabel")));
}

// Actions for the first responder have no target: they go up the responder chain.
void NibConnections::connectAction(const Connection& action) {
  const Object target = isFirstResponder(action.index) ? Object() : action.destination;
  const nib::Value* mask = decoding_.value(action.index, "UIEventMask");
  const auto* events = mask == nullptr ? nullptr : std::get_if<nib::Integer>(&mask->content);
  const std::string selector = decoding_.text(action.index, "UILabel");
  objc::send<void, "addTarget:action:forControlEvents:">(
      action.source, target, sel_registerName(selector.c_str()),
      events == nullptr ? 0UL : static_cast<unsigned long>(events->value));
}

bool NibConnections::isFirstResponder(std::uint32_t connection) const {
  const auto destination = decoding_.reference(connection, "UIDestination");
  return destination &&
         decoding_.text(*destination, "UIProxiedObjectIdentifier") == "IBFirstResponder";
}

}  // namespace sim
