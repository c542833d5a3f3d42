#include "simulator/foundation/NSLocale.h"

#include "tests/foundation/FoundationTest.h"

namespace sim {
namespace {

using objc::Object;
using objc::send;

class NSLocaleTest : public FoundationTest {
 protected:
  void TearDown() override {
    phone.setup.locale = "en_US";
    FoundationTest::TearDown();
  }
  static Object locale(const char* identifier) {
    return send<Object, "localeWithLocaleIdentifier:">(cls("NSLocale"), string(identifier));
  }
};

TEST_F(NSLocaleTest, isThePhones) {
  phone.setup.locale = "ar_SA";
  const Object current = send<Object, "currentLocale">(cls("NSLocale"));
  EXPECT_EQ(text(send<Object, "localeIdentifier">(current)), "ar_SA");
  EXPECT_EQ(text(send<Object, "languageCode">(current)), "ar");
  EXPECT_EQ(text(send<Object, "countryCode">(current)), "SA");
  EXPECT_EQ(text(send<Object, "firstObject">(send<Object, "preferredLanguages">(cls("NSLocale")))),
            "ar-SA");
  EXPECT_TRUE((send<bool, "isEqual:">(current, locale("ar_SA"))));
}

TEST_F(NSLocaleTest, takesIdentifiersApart) {
  const LocaleParts parts = partsOf("zh-Hans_CN@calendar=gregorian");
  EXPECT_EQ(parts.language, "zh");
  EXPECT_EQ(parts.script, "Hans");
  EXPECT_EQ(parts.region, "CN");
  EXPECT_FALSE((send<Object, "countryCode">(locale("ar"))));
  EXPECT_FALSE((send<Object, "scriptCode">(locale("ar"))));
}

class NSNumberFormatterTest : public NSLocaleTest {
 protected:
  static std::string formatted(const char* identifier, Object value) {
    const auto formatter = objc::adopt(Object(objc_alloc_init(cls("NSNumberFormatter"))));
    send<void, "setLocale:">(formatter.get(), locale(identifier));
    return text(send<Object, "stringFromNumber:">(formatter.get(), value));
  }
};

TEST_F(NSNumberFormatterTest, writesTheLocalesDigits) {
  EXPECT_EQ(formatted("ar", number(1234567890L)), "١٢٣٤٥٦٧٨٩٠");
  EXPECT_EQ(formatted("ar_MA", number(12L)), "12");
  EXPECT_EQ(formatted("fa_IR", number(45L)), "۴۵");
  EXPECT_EQ(formatted("en_US", number(1234567L)), "1234567");
  EXPECT_EQ(formatted("de", number(-5L)), "-5");
  EXPECT_EQ(formatted("ar", number(-5L)), "\u061c-٥");
}

TEST_F(NSNumberFormatterTest, roundsHalvesToTheEvenNumber) {
  EXPECT_EQ(formatted("en", number(2.5)), "2");
  EXPECT_EQ(formatted("en", number(3.5)), "4");
}

TEST_F(NSNumberFormatterTest, followsThePhone) {
  phone.setup.locale = "ar_SA";
  const auto formatter = objc::adopt(Object(objc_alloc_init(cls("NSNumberFormatter"))));
  EXPECT_EQ(text(send<Object, "stringFromNumber:">(formatter.get(), number(7L))), "٧");
  EXPECT_FALSE((send<Object, "stringFromNumber:">(formatter.get(), nullptr)));
}

}  // namespace
}  // namespace sim
