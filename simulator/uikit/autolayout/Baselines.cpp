#include "simulator/uikit/autolayout/Baselines.h"

#include <algorithm>

#include "simulator/foundation/Kind.h"
#include "simulator/uikit/controls/UIButton.h"
#include "simulator/uikit/resources/UIFont.h"
#include "simulator/uikit/views/UILabel.h"
#include "simulator/uikit/views/UIStackView.h"
#include "simulator/uikit/views/UIView.h"

namespace sim {
namespace {

using objc::Object;

// From the top of a line to its baseline, and from there to its bottom.
struct Line {
  double above = 0;
  double below = 0;
};

Line lineOf(const UILabel& label) {
  const UIFont* font = stateOf<UIFont>(label.font.get());
  return font != nullptr ? Line{font->ascender(), -font->descender()} : Line();
}

// The view that stands for a stack.
Object representative(const UIStackView& stack, bool isFirst) {
  const std::vector<Object> views = stack.visible();
  if (views.empty()) return nullptr;
  return stack.axis == UIStackView::horizontal || isFirst ? views.front() : views.back();
}

}  // namespace

// A button's title stands in the middle of it.
LinearExpression baseline(const LayoutProblem& problem, Object view, long attribute,
                          const Space& space) {
  const bool isFirst = attribute == attribute::firstBaseline;
  const auto edge = [&](long which) { return expressionOf(problem, view, which, space); };
  if (const UIStackView* stack = stateOf<UIStackView>(view))
    if (const Object shown = representative(*stack, isFirst))
      return baseline(problem, shown, attribute, space);
  if (const UIButton* button = stateOf<UIButton>(view))
    if (const UILabel* title = stateOf<UILabel>(button->label.get())) {
      const Line line = lineOf(*title);
      return edge(attribute::centerY) + (line.above - line.below) / 2;
    }
  const UILabel* label = stateOf<UILabel>(view);
  const Line line = label != nullptr ? lineOf(*label) : Line();
  return isFirst ? edge(attribute::top) + line.above : edge(attribute::bottom) - line.below;
}

}  // namespace sim
