// UIStackView: where the arranged views stand.
#include <algorithm>
#include <numeric>

#include "objc/Message.h"
#include "simulator/uikit/UIStackView.h"
#include "simulator/uikit/UIView.h"

namespace sim {
namespace {

using objc::Object;

// Its own wish, or what it is where it has none.
CGSize wanted(Object view) {
  const CGSize intrinsic = objc::send<CGSize, "intrinsicContentSize">(view);
  const CGSize size = UIView::of(view).geometry().bounds.size;
  return {intrinsic.width >= 0 ? intrinsic.width : size.width,
          intrinsic.height >= 0 ? intrinsic.height : size.height};
}

struct Span {
  double start;
  double length;
};

// Across the axis.
Span aligned(double wish, double room, long alignment) {
  const double length = std::min(wish, room);
  if (alignment == UIStackView::alignLeading) return {0, length};
  if (alignment == UIStackView::alignCenter) return {(room - length) / 2, length};
  if (alignment == UIStackView::alignTrailing) return {room - length, length};
  return {0, room};
}

}  // namespace

std::vector<Object> UIStackView::visible() const {
  std::vector<Object> views;
  for (const auto& each : arranged)
    if (!UIView::of(each.get()).isHidden()) views.push_back(each);
  return views;
}

std::vector<double> UIStackView::lengths(const std::vector<Object>& views, double room) const {
  room -= spacing * double(views.size() - 1);
  if (distribution == fillEqually)
    return std::vector<double>(views.size(), room / double(views.size()));
  std::vector<double> all;
  for (const Object view : views)
    all.push_back(axis == horizontal ? wanted(view).width : wanted(view).height);
  all.back() = std::max(0.0, room - std::accumulate(all.begin(), all.end() - 1, 0.0));
  return all;
}

void UIStackView::layoutSubviews() {
  super<void, "layoutSubviews">();
  const std::vector<Object> views = visible();
  if (views.empty()) return;
  const CGSize room = UIView::of(self()).geometry().bounds.size;
  const bool across = axis == horizontal;
  const std::vector<double> along = lengths(views, across ? room.width : room.height);
  double start = 0;
  for (std::size_t i = 0; i < views.size(); ++i) {
    const CGSize wish = wanted(views[i]);
    const Span other = across ? aligned(wish.height, room.height, alignment)
                              : aligned(wish.width, room.width, alignment);
    const CGRect frame = across ? CGRect{{start, other.start}, {along[i], other.length}}
                                : CGRect{{other.start, start}, {other.length, along[i]}};
    objc::send<void, "setFrame:">(views[i], frame);
    start += along[i] + spacing;
  }
}

CGSize UIStackView::intrinsicContentSize() const {
  const std::vector<Object> views = visible();
  CGSize size;
  for (const Object view : views) {
    const CGSize wish = wanted(view);
    size = axis == horizontal ? CGSize{size.width + wish.width, std::max(size.height, wish.height)}
                              : CGSize{std::max(size.width, wish.width), size.height + wish.height};
  }
  const double gaps = views.empty() ? 0 : spacing * double(views.size() - 1);
  (axis == horizontal ? size.width : size.height) += gaps;
  return size;
}

}  // namespace sim
