// Which classes and methods the system has in which of its versions: one table for all stand-ins.
//
// Whoever registers a class or a method need not ask: StandIn leaves out what the phone's version
// lacks. Where versions differ in what a method does, systemMajor() tells them apart.
#pragma once

#include <climits>
#include <string>
#include <string_view>

namespace sim {

// Major parts, both included. What nothing is known of is everywhere.
struct Versions {
  static constexpr int earliest = 0, latest = INT_MAX;

  int first = earliest;
  int last = latest;

  bool contains(int major) const { return first <= major && major <= last; }
  // "15 and earlier", "16 and later", "14 to 16"; empty for all.
  std::string text() const;
};

// Of a class, or of a method or property (as it is registered) in the versions that have its class.
Versions versionsOf(std::string_view cls, std::string_view member = {});

// 15 of "15.4.1"; later than all where it is no number that fits.
int majorVersion(std::string_view version);
// Of the current phone's system.
int systemMajor();

}  // namespace sim
