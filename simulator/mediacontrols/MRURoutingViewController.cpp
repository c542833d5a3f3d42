#include "simulator/mediacontrols/MRURoutingViewController.h"

#include "simulator/foundation/Values.h"
#include "simulator/radios/Radios.h"
#include "simulator/standin/StandIn.h"
#include "simulator/uikit/views/ViewBuilding.h"

namespace sim {
namespace {

using objc::Object;

constexpr double rowHeight = 44, rowMargin = 16;  // points

// Sound goes to the device that was connected last.
std::vector<std::string> names() {
  std::vector<std::string> all = {"iPhone"};
  for (const Radios::Peer& peer : Radios::current().peers()) all.push_back(peer.name);
  return all;
}

}  // namespace

Object MRURoutingViewController::routeNames() const {
  std::vector<Object> shown;
  for (const std::string& name : names()) shown.push_back(string(name));
  return array(shown);
}

CGSize MRURoutingViewController::preferredContentSize() const {
  return {0, double(names().size()) * rowHeight};
}

void MRURoutingViewController::addRow(const std::string& name, bool isChosen) {
  const Object view = objc::send<Object, "view">(self());
  rows.push_back(addLabel(view, {.points = 16, .isBold = isChosen}));
  setText(rows.back(), string(isChosen ? name + "  ✓" : name));
}

void MRURoutingViewController::viewWillAppear(bool animated) {
  super<void, "viewWillAppear:">(animated);
  for (const auto& row : rows) objc::send<void, "removeFromSuperview">(row.get());
  rows.clear();
  const auto all = names();
  for (const std::string& name : all) addRow(name, &name == &all.back());
}

void MRURoutingViewController::viewWillLayoutSubviews() {
  super<void, "viewWillLayoutSubviews">();
  const double width = sizeOf(objc::send<Object, "view">(self())).width - 2 * rowMargin;
  double y = 0;
  for (const auto& row : rows) {
    setFrame(row, {{rowMargin, y}, {width, rowHeight}});
    y += rowHeight;
  }
}

void MRURoutingViewController::registerClass() {
  using Routes = MRURoutingViewController;
  StandIn<Routes>("MediaControls", "MRURoutingViewController", "UIViewController")
      .partial<"routeNames", &Routes::routeNames>("the simulator's own, for reading what is listed")
      .method<"preferredContentSize", &Routes::preferredContentSize>()
      .partial<"viewWillAppear:", &Routes::viewWillAppear>(
          "lists the devices of that moment; none can be chosen")
      .method<"viewWillLayoutSubviews", &Routes::viewWillLayoutSubviews>()
      .finish();
}

}  // namespace sim
