// The constraints that a stack has for its arranged views. Priorities and names are the
// platform's, as far as its messages show them.
#include "objc/Message.h"
#include "simulator/uikit/autolayout/Attributes.h"
#include "simulator/uikit/autolayout/Constraints.h"
#include "simulator/uikit/autolayout/ViewConstraints.h"
#include "simulator/uikit/views/LayoutDirection.h"
#include "simulator/uikit/views/UIStackView.h"
#include "simulator/uikit/views/UIView.h"

namespace sim {
namespace {

using objc::Object;

constexpr double boundary = 999.5, proportion = 999, centring = 150, fit = 51, suppression = 25;

class Stack {
 public:
  Stack(LayoutProblem& problem, Object view)
      : problem_(problem),
        view_(view),
        stack_(UIStackView::of(view)),
        shown_(stack_.visible()),
        along_(stack_.axis == UIStackView::horizontal ? Axis::horizontal : Axis::vertical),
        across_(along_ == Axis::horizontal ? Axis::vertical : Axis::horizontal),
        isMirrored_(viewIsRightToLeft(view)) {}

  void addAll() {
    addHidden();
    for (const Object view : shown_) alignAcross(view);
    if (stack_.alignment != UIStackView::alignFill) fitAcross();
    if (shown_.empty()) return;
    connectEnds();
    if (stack_.distribution == UIStackView::equalSpacing)
      addEqualGaps();
    else if (stack_.distribution == UIStackView::equalCentering)
      addEqualCentres();
    else
      addGaps();
    if (stack_.distribution == UIStackView::fillEqually) addEqualLengths();
    if (stack_.distribution == UIStackView::fillProportionally) addProportions();
    if (stack_.distribution == UIStackView::fill) suppressAmbiguity();
  }

 private:
  // Where things begin and end in the direction in which the stack runs.
  LinearExpression start(Object view, Axis axis) const {
    if (axis == Axis::horizontal && isMirrored_)
      return -1 * (problem_.start(view, axis, view_) + problem_.length(view, axis));
    return problem_.start(view, axis, view_);
  }
  LinearExpression length(Object view, Axis axis) const { return problem_.length(view, axis); }
  LinearExpression end(Object view, Axis axis) const {
    return start(view, axis) + length(view, axis);
  }
  LinearExpression centre(Object view, Axis axis) const {
    return start(view, axis) + 0.5 * length(view, axis);
  }
  // Where the views may stand: the whole stack, or what is inside its margins.
  LinearExpression roomStart(Axis axis) const { return start(view_, axis) + margins(axis).first; }
  LinearExpression roomEnd(Axis axis) const { return end(view_, axis) - margins(axis).second; }
  std::pair<double, double> margins(Axis axis) const {
    const ViewConstraints* its = existingConstraintsOf(view_);
    if (!stack_.isArrangedInMargins || its == nullptr) return {};
    const UIEdgeInsets& insets = its->margins;
    if (axis == Axis::vertical) return {insets.top, insets.bottom};
    return isMirrored_ ? std::pair(insets.right, insets.left)
                       : std::pair(insets.left, insets.right);
  }
  double spacing(std::size_t index) const { return stack_.spacingAfter(shown_[index]); }
  LinearExpression gapAfter(std::size_t index) const {
    return start(shown_[index + 1], along_) - end(shown_[index], along_);
  }
  void add(const LinearExpression& left, Relation relation, double priority, const char* name) {
    problem_.add(left, relation, priority, {nullptr, name, view_});
  }
  void addEqual(const LinearExpression& a, const LinearExpression& b, const char* name) {
    add(a - b, Relation::equal, Problem::required, name);
  }

  // They take no room along the stack and make it no wider across.
  void addHidden() {
    for (const auto& view : stack_.arranged) {
      if (!UIView::of(view.get()).isHidden()) continue;
      add(length(view, along_), Relation::equal, Problem::required, "UISV-hiding");
      for (const Axis axis : {along_, across_})
        addEqual(start(view, axis), roomStart(axis), "UISV-hiding");
    }
  }

  void alignAcross(Object view) {
    constexpr const char* name = "UISV-alignment";
    const long alignment = stack_.alignment;
    const bool fills = alignment == UIStackView::alignFill;
    if (fills || alignment == UIStackView::alignLeading)
      addEqual(start(view, across_), roomStart(across_), name);
    if (fills || alignment == UIStackView::alignTrailing)
      addEqual(end(view, across_), roomEnd(across_), name);
    if (alignment == UIStackView::alignCenter)
      addEqual(centre(view, across_), 0.5 * (roomStart(across_) + roomEnd(across_)), name);
    if (alignment == UIStackView::alignFirstBaseline || alignment == UIStackView::alignLastBaseline)
      alignBaselines(view);
    if (!fills) stayInside(view);
  }

  void stayInside(Object view) {
    constexpr const char* name = "UISV-spanning-boundary";
    add(start(view, across_) - roomStart(across_), Relation::atLeast, boundary, name);
    add(end(view, across_) - roomEnd(across_), Relation::atMost, boundary, name);
  }

  // With that of the first view.
  void alignBaselines(Object view) {
    if (shown_.empty() || view == shown_.front()) return;
    const long which = stack_.alignment == UIStackView::alignLastBaseline
                           ? attribute::lastBaseline
                           : attribute::firstBaseline;
    addEqual(expressionOf(problem_, view, which, {view_}),
             expressionOf(problem_, shown_.front(), which, {view_}), "UISV-alignment");
  }

  void fitAcross() { add(length(view_, across_), Relation::equal, fit, "UISV-spanning-fit"); }

  void connectEnds() {
    constexpr const char* name = "UISV-canvas-connection";
    addEqual(start(shown_.front(), along_), roomStart(along_), name);
    addEqual(end(shown_.back(), along_), roomEnd(along_), name);
  }

  void addGaps() {
    for (std::size_t i = 0; i + 1 < shown_.size(); ++i)
      addEqual(gapAfter(i), spacing(i), "UISV-spacing");
  }

  void addEqualGaps() {
    for (std::size_t i = 0; i + 1 < shown_.size(); ++i) {
      add(gapAfter(i) - spacing(i), Relation::atLeast, Problem::required, "UISV-spacing");
      if (i > 0) addEqual(gapAfter(i), gapAfter(0), "UISV-distributing");
    }
  }

  void addEqualCentres() {
    const auto step = [this](std::size_t i) {
      return centre(shown_[i + 1], along_) - centre(shown_[i], along_);
    };
    for (std::size_t i = 0; i + 1 < shown_.size(); ++i) {
      add(gapAfter(i) - spacing(i), Relation::atLeast, Problem::required, "UISV-spacing");
      if (i > 0) add(step(i) - step(0), Relation::equal, centring, "UISV-distributing");
    }
  }

  void addEqualLengths() {
    for (std::size_t i = 1; i < shown_.size(); ++i)
      addEqual(length(shown_[i], along_), length(shown_[0], along_), "UISV-fill-equally");
  }

  // To what they would like to have.
  void addProportions() {
    std::vector<double> wanted;
    double total = 0;
    for (const Object view : shown_) {
      const CGSize size = objc::send<CGSize, "intrinsicContentSize">(view);
      wanted.push_back(std::max(along_ == Axis::horizontal ? size.width : size.height, 0.0));
      total += wanted.back();
    }
    if (total == 0) return addEqualLengths();
    double gaps = 0;
    for (std::size_t i = 0; i + 1 < shown_.size(); ++i) gaps += spacing(i);
    for (std::size_t i = 0; i < shown_.size(); ++i)
      add(length(shown_[i], along_) -
              (wanted[i] / total) * ((roomEnd(along_) - roomStart(along_)) - gaps),
          Relation::equal, proportion, "UISV-fill-proportionally");
  }

  // All but the last are as short as their contents let them: it fills what is left.
  void suppressAmbiguity() {
    for (std::size_t i = 0; i + 1 < shown_.size(); ++i)
      add(length(shown_[i], along_), Relation::equal, suppression, "UISV-ambiguity-suppression");
  }

  LayoutProblem& problem_;
  Object view_;
  const UIStackView& stack_;
  std::vector<Object> shown_;
  Axis along_, across_;
  bool isMirrored_;
};

}  // namespace

void addStackConstraints(LayoutProblem& problem, Object stack) {
  Stack(problem, stack).addAll();
}

}  // namespace sim
