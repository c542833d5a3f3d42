#include "simulator/preferences/PageView.h"

#include <algorithm>
#include <utility>

#include "simulator/foundation/Values.h"
#include "simulator/preferences/Style.h"
#include "simulator/preferences/TapArea.h"
#include "simulator/standin/StandIn.h"
#include "simulator/uikit/views/ViewBuilding.h"

namespace sim {
namespace {

using objc::Object;

bool haveSameRows(const Page& before, const Page& now) {
  return std::equal(before.groups.begin(), before.groups.end(), now.groups.begin(),
                    now.groups.end(), [](const RowGroup& a, const RowGroup& b) {
                      return a.header == b.header && a.footer == b.footer &&
                             a.rows.size() == b.rows.size();
                    });
}

objc::Strong<Object> addNote(Object parent, const std::string& words) {
  constexpr double points = 13;
  if (words.empty()) return {};
  auto label = addLabel(parent, {.points = points, .alignment = style::leading(), .lines = 0});
  objc::send<void, "setTextColor:">(label.get(), style::secondaryText());
  setText(label.get(), string(words));
  return label;
}

}  // namespace

Object PageView::initWithFrame(CGRect frame) {
  constexpr long center = 1;
  const Object made = super<Object, "initWithFrame:">(frame);
  if (!made) return nullptr;
  fill(made, style::background());
  window = addView(made, "_SettingsTapArea");
  scrolled = addView(window.get(), "UIView");
  bar = addView(made, "UIView");
  title = addLabel(bar.get(), {.isBold = true, .alignment = center});
  objc::send<void, "setAdjustsFontSizeToFitWidth:">(title.get(), true);
  objc::send<void, "setMinimumScaleFactor:">(title.get(), 0.6);
  objc::send<void, "setClipsToBounds:">(window.get(), true);
  if (window) TapArea::of(window.get()).dragged = [this](double way) { scrollBy(-way); };
  return made;
}

void PageView::show(const Page& shown, std::function<void()> goesBack) {
  const bool isSame = haveSameRows(page, shown);
  page = shown;
  setText(title.get(), string(page.title));
  showBack(std::move(goesBack));
  if (!isSame) makeGroups();
  for (std::size_t i = 0; i < groups.size(); ++i)
    for (std::size_t j = 0; j < groups[i].rows.size(); ++j)
      RowView::of(groups[i].rows[j].get()).show(page.groups[i].rows[j]);
  objc::send<void, "setNeedsLayout">(self());
}

void PageView::showBack(std::function<void()> goesBack) {
  if (page.back.empty() || back) return;
  back = addView(bar.get(), "_SettingsTapArea");
  if (!back) return;
  style::addSymbol(back.get(), style::Symbol::back, style::blue());
  const auto label = addLabel(back.get(), {.alignment = style::leading()});
  objc::send<void, "setTextColor:">(label.get(), style::blue());
  setText(label.get(), string(page.back));
  TapArea::of(back.get()).onTap(std::move(goesBack));
}

void PageView::makeGroups() {
  constexpr double radius = 10;  // points
  for (const auto& child : groups)
    for (const auto* view : {&child.header, &child.card, &child.footer})
      objc::send<void, "removeFromSuperview">(view->get());
  groups.clear();
  for (const RowGroup& group : page.groups) {
    GroupViews& made = groups.emplace_back();
    made.header = addNote(scrolled.get(), group.header);
    made.card = addView(scrolled.get(), "UIView");
    made.footer = addNote(scrolled.get(), group.footer);
    fill(made.card.get(), style::card(), radius);
    objc::send<void, "setClipsToBounds:">(made.card.get(), true);
    for (std::size_t i = 0; i < group.rows.size(); ++i) {
      made.rows.push_back(addView(made.card.get(), "_SettingsRow"));
      TapArea::of(made.rows.back().get()).dragged = [this](double way) { scrollBy(-way); };
      made.lines.push_back(addView(made.card.get(), "UIView"));
      fill(made.lines.back().get(), style::line());
    }
  }
}

void PageView::scrollBy(double way) {
  const double room = sizeOf(window.get()).height;
  offset = std::clamp(offset + way, 0.0, std::max(0.0, contentHeight_ - room));
  setFrame(scrolled.get(), {{0, -offset}, {sizeOf(window.get()).width, contentHeight_}});
}

void PageView::scrollTo(Object row) {
  objc::send<void, "layoutIfNeeded">(self());
  const Object card = objc::send<Object, "superview">(row);
  const double top = frameOf(card).origin.y + frameOf(row).origin.y;
  const double room = sizeOf(window.get()).height - homeBarRoom;
  if (top < offset) scrollBy(top - offset);
  if (top + RowView::height > offset + room) scrollBy(top + RowView::height - offset - room);
}

void PageView::scrollToTypedRow() {
  for (const GroupViews& group : groups)
    for (const auto& row : group.rows)
      if (RowView::of(row.get()).row.isTyped) scrollTo(row.get());
}

void PageView::setCovered(double points) {
  covered = points;
  objc::send<void, "setNeedsLayout">(self());
}

void PageView::registerClass() {
  StandIn<PageView>("Preferences", "_SettingsPage", "UIView")
      .method<"initWithFrame:", &PageView::initWithFrame>()
      .method<"_scrollRows:", &PageView::scrollRows>()
      .method<"layoutSubviews", &PageView::layoutSubviews>()
      .finish();
}

}  // namespace sim
