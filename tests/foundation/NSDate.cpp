#include "simulator/foundation/NSDate.h"

#include "tests/foundation/FoundationTest.h"

namespace sim {
namespace {

using objc::Object;
using objc::send;
using NSDateTest = FoundationTest;

TEST_F(NSDateTest, followsThePhonesClock) {
  const Object before = send<Object, "date">(cls("NSDate"));
  advance(90);
  EXPECT_EQ((send<double, "timeIntervalSinceNow">(before)), -90);
  const Object later = send<Object, "dateWithTimeIntervalSinceNow:">(cls("NSDate"), 30.0);
  EXPECT_EQ((send<double, "timeIntervalSinceDate:">(later, before)), 120);
  EXPECT_EQ((send<double, "timeIntervalSinceReferenceDate">(
                objc::adopt(Object(objc_alloc_init(cls("NSDate")))).get())),
            phone.clock.wall());
}

TEST_F(NSDateTest, countsFromBothEpochs) {
  const Object made =
      send<Object, "dateWithTimeIntervalSinceReferenceDate:">(cls("NSDate"), 820533600.0);
  EXPECT_EQ((send<double, "timeIntervalSince1970">(made)), 1798840800.0);
  EXPECT_EQ((send<double, "timeIntervalSinceReferenceDate">(
                send<Object, "dateWithTimeIntervalSince1970:">(cls("NSDate"), 978307200.0))),
            0);
}

TEST_F(NSDateTest, describesItselfInUtc) {
  EXPECT_EQ(description(date(820533600)), "2027-01-01 22:00:00 +0000");
  EXPECT_EQ(description(date(0)), "2001-01-01 00:00:00 +0000");
  EXPECT_EQ(description(date(-0.5)), "2000-12-31 23:59:59 +0000");
  EXPECT_EQ(description(date(-978307200.5)), "1969-12-31 23:59:59 +0000");
  EXPECT_EQ(description(date(820533660.9)), "2027-01-01 22:01:00 +0000");
  EXPECT_EQ(description(send<Object, "distantFuture">(cls("NSDate"))), "4001-01-01 00:00:00 +0000");
  EXPECT_EQ(description(send<Object, "distantPast">(cls("NSDate"))), "0000-12-30 00:00:00 +0000");
}

TEST_F(NSDateTest, compares) {
  const Object early = date(10);
  const Object late = date(20);
  EXPECT_EQ((send<long, "compare:">(early, late)), -1);
  EXPECT_EQ((send<long, "compare:">(late, early)), 1);
  EXPECT_EQ((send<long, "compare:">(early, date(10))), 0);
  EXPECT_EQ((send<Object, "earlierDate:">(late, early)), early);
  EXPECT_EQ((send<Object, "laterDate:">(early, late)), late);
  EXPECT_TRUE((send<bool, "isEqual:">(early, date(10))));
  EXPECT_FALSE((send<bool, "isEqual:">(early, late)));
  EXPECT_TRUE(
      (send<bool, "isEqualToDate:">(send<Object, "dateByAddingTimeInterval:">(early, 10.0), late)));
}

TEST_F(NSDateTest, isReadFromText) {
  double seconds = 0;
  EXPECT_TRUE(parseDate("2027-01-01 22:00:00", seconds));
  EXPECT_EQ(seconds, 820533600);
  EXPECT_TRUE(parseDate("2027-01-01 22:01:00 +0000", seconds));
  EXPECT_EQ(seconds, 820533660);
  for (const char* wrong : {"", "2027-01-01", "2027-13-01 00:00:00", "2027-02-29 00:00:00",
                            "2027-01-01 24:00:00", "2027-01-01 22:00:00x", "tomorrow"})
    EXPECT_FALSE(parseDate(wrong, seconds)) << wrong;
}

}  // namespace
}  // namespace sim
