// What the views of platform/Foundation.h do beyond sending their message.
#include "platform/Foundation.h"
#include "tests/foundation/FoundationTest.h"

namespace sim {
namespace {

struct ViewsObserver : objc::Implementation<ViewsObserver> {
  int heard;

  void hear(objc::Object) { ++heard; }

  static Class registerClass() {
    return objc::ClassBuilder<ViewsObserver>("ObserverOfViews", "NSObject")
        .method<"hear:", &ViewsObserver::hear>()
        .finish();
  }
};

using ViewsOfFoundation = FoundationTest;

TEST_F(ViewsOfFoundation, ObserveNothingUnderAMissingName) {
  ASSERT_TRUE(ViewsObserver::registerClass());
  const auto center = ::NSNotificationCenter::defaultCenter();
  const auto observer = ViewsObserver::make();
  const SEL hear = objc::selector<"hear:">();
  center.addObserver(observer, hear, ::NSString(nullptr), nullptr);
  center.postNotificationName("A"_ns, nullptr);
  EXPECT_EQ(ViewsObserver::of(observer).heard, 0);
  center.addObserver(observer, hear, "A"_ns, nullptr);
  center.postNotificationName("A"_ns, nullptr);
  EXPECT_EQ(ViewsObserver::of(observer).heard, 1);
  center.removeObserver(observer);
}

TEST_F(ViewsOfFoundation, TellAStringFromWhatIsNone) {
  EXPECT_TRUE(isKindOf<::NSString>("A"_ns));
  EXPECT_TRUE(isKindOf<::NSString>(::NSMutableString::string()));
  EXPECT_FALSE(isKindOf<::NSString>(::NSNumber::numberWithInteger(1)));
  EXPECT_FALSE(::isKindOf<::NSString>(nullptr));
}

TEST_F(ViewsOfFoundation, ReadOddValuesAsNothing) {
  EXPECT_TRUE(::NSNumber::boolValueOf(::NSNumber::numberWithBool(true)));
  EXPECT_EQ(::NSNumber::integerValueOf("12"_ns), 12);
  const auto odd = ::NSDictionary::dictionary();
  EXPECT_FALSE(::NSNumber::boolValueOf(odd));
  EXPECT_EQ(::NSNumber::integerValueOf(odd), 0);
  EXPECT_EQ(::NSDate::timeIntervalSinceNowOf(odd), 0);
  EXPECT_EQ(::NSDate::timeIntervalSinceNowOf(::NSDate::dateWithTimeIntervalSinceNow(5)), 5);
}

TEST_F(ViewsOfFoundation, FormatSeveralArguments) {
  const auto made = ::NSString::stringWithFormat("%02d:%ld %@ %g"_ns, 5, -7L, "A"_ns, 0.5);
  EXPECT_STREQ(made.UTF8String(), "05:-7 A 0.5");
}

}  // namespace
}  // namespace sim
