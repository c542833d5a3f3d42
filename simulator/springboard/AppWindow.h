// The window of an application of the system's that the simulator has, above the home screen and
// below the lock screen. On a phone each is a process of its own.
#pragma once

#include <functional>

#include "objc/Ownership.h"

namespace sim {

class AppWindow {
 public:
  // Shows it with nothing but the bar at the bottom, which leads home: it calls `goHome`, which is
  // to close this. False when it is open, or on a phone without windows.
  bool open(std::function<void()> goHome);
  // With a new view of that class. Nothing when it is open, or without windows or that class.
  void open(const char* viewClass);
  void close();
  bool isOpen() const { return bool(window_); }
  objc::Object root() const;                         // fills it; nil while it is closed
  objc::Object view() const { return view_.get(); }  // of the class; nil while it is closed

  // Fills the root, below the bar, above the first `index` views.
  void insert(objc::Object view, long index);

 private:
  void addHomeBar(std::function<void()> goHome);

  objc::Strong<objc::Object> window_, view_;
};

}  // namespace sim
