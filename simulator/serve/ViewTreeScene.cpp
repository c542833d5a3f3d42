#include <cstdint>
#include <map>
#include <nlohmann/json.hpp>
#include <string>

#include "simulator/foundation/Kind.h"
#include "simulator/foundation/Values.h"
#include "simulator/serve/SceneSource.h"
#include "simulator/uikit/UILabel.h"
#include "simulator/uikit/UIView.h"
#include "simulator/uikit/UIWindow.h"

namespace sim {

using nlohmann::json;
using objc::Object;

namespace {

std::string identifier(Object view) {
  return std::to_string(reinterpret_cast<std::uintptr_t>(view.get()));
}

json frameOf(const CGRect& frame) {
  return {frame.origin.x, frame.origin.y, frame.size.width, frame.size.height};
}

void addView(json& nodes, Object view) {
  const UIView& state = UIView::of(view);
  json node = {{"class", object_getClassName(view.get())},
               {"frame", frameOf(state.geometry().frame())},
               {"bounds", frameOf(state.geometry().bounds)},
               {"alpha", state.alpha()},
               {"hidden", state.isHidden()},
               {"children", json::array()}};
  if (const UILabel* label = stateOf<UILabel>(view)) node["text"] = text(label->text.get());
  for (const auto& child : state.children) {
    node["children"].push_back(identifier(child.get()));
    addView(nodes, child.get());
  }
  nodes[identifier(view)] = std::move(node);
}

class ViewTreeScene final : public SceneSource {
 public:
  json scene() override {
    json nodes = json::object();
    json windows = json::array();
    for (const auto& window : UIWindow::visibleWindows()) {
      windows.push_back(identifier(window.get()));
      addView(nodes, window.get());
    }
    nodes["screen"] = {{"children", std::move(windows)}};
    return {{"root", "screen"}, {"nodes", std::move(nodes)}};
  }
};

}  // namespace

std::unique_ptr<SceneSource> viewTreeScene() {
  return std::make_unique<ViewTreeScene>();
}

}  // namespace sim
