// A phone of which nothing but Foundation, QuartzCore and UIKit is there.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "objc/Block.h"
#include "objc/Class.h"
#include "objc/Message.h"
#include "simulator/coregraphics/Geometry.h"
#include "simulator/foundation/Values.h"
#include "simulator/machine/Phone.h"

namespace sim {

using objc::Object;
using objc::send;
using objc::Strong;

// Every test ends by proving that it left no object behind.
class UIKitTest : public ::testing::Test {
 protected:
  UIKitTest();
  void SetUp() override;
  void TearDown() override;

  // Moves the phone's time on and runs what falls due.
  void advance(double duration);
  // The journal's lines of this test.
  std::vector<std::string> journal() const;

  Phone& phone;

 private:
  std::map<std::string, std::size_t> before_;
  std::size_t journalStart_ = 0;
  std::optional<objc::AutoreleasePool> pool_;
};

inline Class cls(const char* name) {
  return objc_getClass(name);
}

inline CGRect rect(double x, double y, double width, double height) {
  return {{x, y}, {width, height}};
}

inline Strong<Object> make(const char* className, CGRect frame = {}) {
  return objc::adopt(send<Object, "initWithFrame:">(objc_alloc(cls(className)), frame));
}

inline CGRect frameOf(Object view) {
  return send<CGRect, "frame">(view);
}

inline void add(Object parent, Object child) {
  send<void, "addSubview:">(parent, child);
}

// A window of that frame on the screen, for views that must be in one.
inline Strong<Object> shownWindow(CGRect frame = rect(0, 0, 390, 844)) {
  auto window = make("UIWindow", frame);
  send<void, "makeKeyAndVisible">(window.get());
  return window;
}

// A finger down in the middle of the view and up again; what a script's author is told when that
// cannot be, empty when it can.
std::string tap(Object view);

}  // namespace sim
