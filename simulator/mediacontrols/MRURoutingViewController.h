// The list of places where sound can go: the phone's speaker and what Bluetooth is connected to.
#pragma once

#include <string>
#include <vector>

#include "objc/Class.h"
#include "simulator/coregraphics/Geometry.h"

namespace sim {

struct MRURoutingViewController : objc::Implementation<MRURoutingViewController> {
  std::vector<objc::Strong<objc::Object>> rows;  // UILabel

  objc::Object routeNames() const;  // NSArray of NSString, as shown
  CGSize preferredContentSize() const;
  void viewWillAppear(bool animated);
  void viewWillLayoutSubviews();

  static void registerClass();

 private:
  void addRow(const std::string& name, bool isChosen);
};

}  // namespace sim
