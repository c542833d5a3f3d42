// A page of the Settings application: a bar with its title, and groups of rows that scroll.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "objc/Class.h"
#include "simulator/preferences/RowView.h"

namespace sim {

struct RowGroup {
  std::string header;
  std::string footer;
  std::vector<Row> rows;
};

struct Page {
  std::string title;
  std::string back;  // title of the page before; empty: there is none
  std::vector<RowGroup> groups;
};

struct PageView : objc::Implementation<PageView> {
  // What belongs to a group, in the scrolled view.
  struct GroupViews {
    objc::Strong<objc::Object> header, footer;      // UILabel
    objc::Strong<objc::Object> card;                // UIView, around the rows
    std::vector<objc::Strong<objc::Object>> rows;   // RowView
    std::vector<objc::Strong<objc::Object>> lines;  // UIView, between the rows
  };

  static constexpr double homeBarRoom = 34;  // points at the lower edge

  objc::Strong<objc::Object> bar, title;  // UIView, UILabel
  objc::Strong<objc::Object> back;        // TapArea, with an arrow and a label
  objc::Strong<objc::Object> window;      // TapArea: what is seen of the scrolled view
  objc::Strong<objc::Object> scrolled;    // UIView
  std::vector<GroupViews> groups;
  Page page;
  double offset = 0;   // of what is scrolled, in points
  double covered = 0;  // of the lower edge, by a keyboard, in points

  objc::Object initWithFrame(CGRect frame);
  // The same rows as before stay where they are.
  void show(const Page& shown, std::function<void()> goesBack);
  void scrollBy(double way);
  void scrollRows(long rows) { scrollBy(double(rows) * RowView::height); }
  // So far that a row is seen whole.
  void scrollTo(objc::Object row);
  void scrollToTypedRow();
  void setCovered(double points);
  void layoutSubviews();

  static void registerClass();

 private:
  void makeGroups();
  void showBack(std::function<void()> goesBack);
  void layOutBar(CGSize size);
  double layOutBack(double top, double width);
  double layOutGroup(std::size_t index, double top, double width);

  double contentHeight_ = 0;
};

}  // namespace sim
