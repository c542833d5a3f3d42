// The window of an application of the system's that the simulator has, above the home screen and
// below the lock screen. On a phone each is a process of its own.
#pragma once

#include <functional>

#include "objc/Ownership.h"

namespace sim {

class AppWindow {
 public:
  // Shows a new view of that class, with the bar at the bottom that leads home. Nothing when it is
  // open, or on a phone without windows.
  void open(const char* viewClass);
  void close();
  bool isOpen() const { return bool(window_); }
  objc::Object view() const { return view_.get(); }  // nil while it is closed

 private:
  void addHomeBar(objc::Object root);

  objc::Strong<objc::Object> window_, view_;
};

}  // namespace sim
