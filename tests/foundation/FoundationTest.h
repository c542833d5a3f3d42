// A phone of which nothing but Foundation is there.
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
#include "simulator/foundation/Values.h"
#include "simulator/machine/Phone.h"

namespace sim {

// Every test ends by proving that it left no object behind.
class FoundationTest : public ::testing::Test {
 protected:
  FoundationTest();
  ~FoundationTest() override;

  void SetUp() override;
  void TearDown() override;

  // Moves the phone's time on and runs what falls due.
  void advance(double duration);
  // The journal's lines of this test.
  std::vector<std::string> journal() const;

  void writeFile(const std::string& phonePath, const std::string& content);
  std::string readFile(const std::string& phonePath) const;

  Phone& phone;

 private:
  std::map<std::string, std::size_t> liveObjects() const;

  std::map<std::string, std::size_t> before_;
  std::size_t journalStart_ = 0;
  std::optional<objc::AutoreleasePool> pool_;
};

// To an instance; the arguments after the first are the variable ones.
template <class R, objc::FixedString Name, class... Rest>
R sendVariadic(objc::Object receiver, objc::Object first, Rest... rest) {
  auto entry = reinterpret_cast<objc::Wire<R> (*)(id, SEL, id, ...)>(&objc_msgSend);
  return objc::fromWire<R>(
      entry(receiver.get(), objc::selector<Name>(), first.get(), objc::toWire<Rest>(rest)...));
}

inline Class cls(const char* name) {
  return objc_getClass(name);
}

}  // namespace sim
