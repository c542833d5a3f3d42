#include "tests/foundation/FoundationTest.h"

#include <fstream>
#include <iterator>

#include "simulator/foundation/NSNull.h"
#include "simulator/host/TemporaryFolder.h"
#include "simulator/runtime/LiveObjects.h"
#include "simulator/standin/Registration.h"

namespace sim {
namespace {

// Classes cannot be registered twice, so tests that share a process share its phone.
struct Shared {
  TemporaryFolder root;
  Phone phone{root.path()};
  Shared() { registerFoundation(); }
};

Phone& sharedPhone() {
  static Shared shared;
  return shared.phone;
}

// Single instances live as long as the process: they exist before the objects are counted.
void makeSingleInstances() {
  NSNull::null();
  objc::send<id, "defaultCenter">(cls("NSNotificationCenter"));
  objc::send<id, "standardUserDefaults">(cls("NSUserDefaults"));
  objc::send<id, "mainThread">(cls("NSThread"));
  objc::send<id, "mainRunLoop">(cls("NSRunLoop"));
  objc::send<id, "processInfo">(cls("NSProcessInfo"));
  objc::send<id, "defaultManager">(cls("NSFileManager"));
  objc::send<id, "mainBundle">(cls("NSBundle"));
}

}  // namespace

FoundationTest::FoundationTest() : phone(sharedPhone()) {}
FoundationTest::~FoundationTest() = default;

void FoundationTest::SetUp() {
  {
    const objc::AutoreleasePool pool;
    makeSingleInstances();
  }
  before_ = liveObjects();
  journalStart_ = phone.journal.entries().size();
  pool_.emplace();
}

void FoundationTest::TearDown() {
  pool_.reset();
  EXPECT_EQ(liveObjects(), before_) << "objects were left behind, or freed too often";
}

void FoundationTest::advance(double duration) {
  phone.queue.runUntil(phone.clock.uptime() + nanoseconds(duration));
}

std::vector<std::string> FoundationTest::journal() const {
  std::vector<std::string> lines;
  const auto& entries = phone.journal.entries();
  for (std::size_t i = journalStart_; i < entries.size(); ++i) lines.push_back(entries[i].text);
  return lines;
}

void FoundationTest::writeFile(const std::string& phonePath, const std::string& content) {
  const std::filesystem::path path = phone.file(phonePath);
  std::filesystem::create_directories(path.parent_path());
  std::ofstream(path, std::ios::binary) << content;
}

std::string FoundationTest::readFile(const std::string& phonePath) const {
  std::ifstream file(phone.file(phonePath), std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(file), {});
}

std::map<std::string, std::size_t> FoundationTest::liveObjects() const {
  std::map<std::string, std::size_t> counts;
  for (const auto& live : sim::runtime::liveInstanceCounts())
    counts[class_getName(live.cls)] = live.count;
  return counts;
}

}  // namespace sim
