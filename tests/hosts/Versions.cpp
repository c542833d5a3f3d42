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

TEST_F(SystemVersion, VersionTooGreatForANumberIsLaterThanAll) {
  bootWith("99999999999.1");
  EXPECT_EQ(objc_lookUpClass("MRUEmbeddingView"), nullptr);
}

TEST_F(SystemVersion, DatePickersHighlightTodayUntil13) {
  bootWith("13.7");
  const SEL highlights = sel_registerName("setHighlightsToday:");
  const Class cls = objc_getClass("UIDatePicker");
  EXPECT_STREQ(method_getTypeEncoding(class_getInstanceMethod(cls, highlights)), "v@:B");
  const auto picker = objc::adopt(objc::send<objc::Object, "new">(cls));
  objc::send<objc::Object, "performSelector:withObject:">(picker.get(), highlights, number(false));
}

TEST_F(SystemVersion, DatePickersHighlightNothingSince14) {
  bootWith("14.2");
  EXPECT_FALSE(class_respondsToSelector(objc_getClass("UIDatePicker"),
                                        sel_registerName("setHighlightsToday:")));
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
