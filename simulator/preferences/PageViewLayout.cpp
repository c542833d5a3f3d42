// PageView: where its parts stand.
#include <algorithm>

#include "simulator/preferences/PageView.h"
#include "simulator/preferences/Style.h"
#include "simulator/standin/StandIn.h"
#include "simulator/uikit/views/ViewBuilding.h"

namespace sim {
namespace {

using objc::Object;

// Points.
constexpr double statusHeight = 47, barHeight = 44, widestBack = 150, symbolGap = 4;
constexpr double groupGap = 28, noteGap = 7, bottomRoom = 40;

// A phone that lies on its side has no status bar.
double topOf(CGSize size) {
  return size.width > size.height ? 0 : statusHeight;
}

double layOutNote(Object label, double top, double width) {
  if (!label) return top;
  const double room = width - 4 * style::margin;
  const double height = sizeThatFits(label, {room, 1000}).height;
  setFrame(label, {{2 * style::margin, top}, {room, height}});
  return top + height;
}

}  // namespace

void PageView::layOutBar(CGSize size) {
  const double top = topOf(size);
  const double backWidth = back ? layOutBack(top, size.width) : 0;
  const double side = style::margin + backWidth;
  setFrame(bar.get(), {{0, 0}, {size.width, top + barHeight}});
  setFrame(title.get(), {{side, top}, {size.width - 2 * side, barHeight}});
}

// Its width.
double PageView::layOutBack(double top, double width) {
  const Object parts = objc::send<Object, "subviews">(back.get());
  const Object arrow = objc::send<Object, "firstObject">(parts);
  const Object words = objc::send<Object, "lastObject">(parts);
  const double x = style::symbolSide + symbolGap;
  const double wordsWidth = std::min(sizeThatFits(words, {width, barHeight}).width, widestBack - x);
  const double its = x + wordsWidth;
  const double arrowTop = (barHeight - style::symbolSide) / 2;
  setFrame(back.get(), style::placed({{style::margin / 2, top}, {its, barHeight}}, width));
  setFrame(arrow, style::placed({{0, arrowTop}, {style::symbolSide, style::symbolSide}}, its));
  setFrame(words, style::placed({{x, 0}, {wordsWidth, barHeight}}, its));
  return its;
}

double PageView::layOutGroup(std::size_t index, double top, double width) {
  const GroupViews& group = groups[index];
  double y = layOutNote(group.header.get(), top, width);
  if (group.header) y += noteGap;
  const double cardWidth = width - 2 * style::margin;
  const double cardHeight = RowView::height * double(group.rows.size());
  setFrame(group.card.get(), {{style::margin, y}, {cardWidth, cardHeight}});
  for (std::size_t i = 0; i < group.rows.size(); ++i) {
    const double rowTop = RowView::height * double(i);
    setFrame(group.rows[i].get(), {{0, rowTop}, {cardWidth, RowView::height}});
    const bool isFirst = i == 0;
    const CGRect line = {{style::margin, rowTop},
                         {cardWidth - style::margin, isFirst ? 0 : style::hairline / 2}};
    setFrame(group.lines[i].get(), style::placed(line, cardWidth));
  }
  y += cardHeight;
  return group.footer ? layOutNote(group.footer.get(), y + noteGap, width) : y;
}

void PageView::layoutSubviews() {
  super<void, "layoutSubviews">();
  const CGSize size = sizeOf(Object(self()));
  const double top = topOf(size) + barHeight;
  layOutBar(size);
  setFrame(window.get(), {{0, top}, {size.width, std::max(0.0, size.height - top - covered)}});
  double y = groupGap;
  for (std::size_t i = 0; i < groups.size(); ++i) y = layOutGroup(i, y, size.width) + groupGap;
  contentHeight_ = y + bottomRoom;
  scrollBy(0);
}

}  // namespace sim
