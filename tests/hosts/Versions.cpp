#include "simulator/standin/Versions.h"

#include "tests/hosts/TestHost.h"

namespace sim {
namespace {

class SystemVersion : public TestHost {
 protected:
  void bootWith(const char* version) {
    phone.setup.systemVersion = version;
    boot();
  }
};

TEST_F(SystemVersion, ClassThatWentIsThereBefore) {
  bootWith("15.8.3");
  EXPECT_NE(objc_lookUpClass("MRUEmbeddingView"), nullptr);
}

TEST_F(SystemVersion, ClassThatWentIsNotThereAfter) {
  bootWith("16.0");
  EXPECT_EQ(objc_lookUpClass("MRUEmbeddingView"), nullptr);
}

// Nobody knows; a phone of the future lacks what the last known one lacks.
TEST_F(SystemVersion, VersionThatNobodyKnowsLacksNoMore) {
  bootWith("1000.1");
  EXPECT_EQ(objc_lookUpClass("MRUEmbeddingView"), nullptr);
  EXPECT_NE(objc_lookUpClass("MRUNowPlayingHeaderView"), nullptr);
}

TEST(Versions, WhatNothingIsKnownOfIsEverywhere) {
  EXPECT_TRUE(versionsOf("NSObject").contains(1));
  EXPECT_EQ(versionsOf("NSObject").text(), "");
}

TEST(Versions, AreNamedByTheirMajorParts) {
  EXPECT_EQ(majorVersion("15.4.1"), 15);
  EXPECT_EQ((Versions{Versions::earliest, 15}.text()), "15 and earlier");
  EXPECT_EQ((Versions{16, Versions::latest}.text()), "16 and later");
  EXPECT_EQ((Versions{14, 16}.text()), "14 to 16");
  EXPECT_EQ((Versions{15, 15}.text()), "15");
}

}  // namespace
}  // namespace sim
