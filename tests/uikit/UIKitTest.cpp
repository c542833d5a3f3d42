#include "tests/uikit/UIKitTest.h"

#include "simulator/host/TemporaryFolder.h"
#include "simulator/runtime/LiveObjects.h"
#include "simulator/standin/Registration.h"
#include "simulator/uikit/touches/Finger.h"
#include "simulator/uikit/touches/Touch.h"

namespace sim {
namespace {

// Classes cannot be registered twice, so tests that share a process share its phone.
struct Shared {
  TemporaryFolder root;
  Phone phone{root.path()};
  Shared() {
    registerFoundation();
    registerQuartzCore();
    registerUIKit();
  }
};

Phone& sharedPhone() {
  static Shared shared;
  return shared.phone;
}

// Single instances live as long as the process: they exist before the objects are counted.
void makeSingleInstances() {
  send<id, "mainScreen">(cls("UIScreen"));
}

std::map<std::string, std::size_t> liveObjects() {
  std::map<std::string, std::size_t> counts;
  for (const auto& live : sim::runtime::liveInstanceCounts())
    counts[class_getName(live.cls)] = live.count;
  return counts;
}

}  // namespace

UIKitTest::UIKitTest() : phone(sharedPhone()) {}

void UIKitTest::SetUp() {
  {
    const objc::AutoreleasePool pool;
    makeSingleInstances();
  }
  before_ = liveObjects();
  journalStart_ = phone.journal.entries().size();
  pool_.emplace();
}

void UIKitTest::TearDown() {
  phone.queue.runUntil(phone.clock.uptime() + nanoseconds(10));  // what still waits lets go
  pool_.reset();
  EXPECT_EQ(liveObjects(), before_) << "objects were left behind, or freed too often";
}

void UIKitTest::advance(double duration) {
  phone.queue.runUntil(phone.clock.uptime() + nanoseconds(duration));
}

std::vector<std::string> UIKitTest::journal() const {
  std::vector<std::string> lines;
  const auto& entries = phone.journal.entries();
  for (std::size_t i = journalStart_; i < entries.size(); ++i) lines.push_back(entries[i].text);
  return lines;
}

std::string tap(Object view) {
  const objc::AutoreleasePool pool;
  try {
    Finger& finger = Finger::current();
    finger.touch(view, finger.reach(view, middleOf(view)), middleOf(view));
    return {};
  } catch (const OutOfReach& error) {
    return error.what();
  }
}

}  // namespace sim
