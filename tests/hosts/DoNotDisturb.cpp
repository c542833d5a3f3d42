#include "tests/hosts/TestHost.h"

namespace sim {
namespace {

class DoNotDisturb : public TestHost {
 protected:
  static objc::Object service() {
    return objc::send<objc::Object, "serviceForClientIdentifier:">(
        objc_getClass("DNDModeAssertionService"), string("com.example.client"));
  }
  static objc::Object details() {
    return objc::send<objc::Object,
                      "userRequestedAssertionDetailsWithIdentifier:modeIdentifier:lifetime:">(
        objc_getClass("DNDModeAssertionDetails"), string("by hand"), string("com.example.mode"),
        nullptr);
  }
  static objc::Object take(objc::Object wanted, id* error) {
    return objc::send<objc::Object, "takeModeAssertionWithDetails:error:">(service(), wanted,
                                                                           error);
  }
};

TEST_F(DoNotDisturb, AnAssertionTellsWhatWasAskedAndWhen) {
  boot();
  advance(90);
  const objc::Object wanted = details();
  id error = wanted.get();
  const objc::Object assertion = take(wanted, &error);
  EXPECT_EQ((objc::send<objc::Object, "details">(assertion)), wanted);
  EXPECT_EQ(notation(objc::send<objc::Object, "startDate">(assertion)),
            "2027-01-01 22:01:30 +0000");
  EXPECT_EQ(error, nullptr);
  EXPECT_EQ(journal().back(),
            "-[DNDModeAssertionService takeModeAssertionWithDetails:"
            "\"by hand\" \"com.example.mode\" nil]");
}

TEST_F(DoNotDisturb, AskingForNothingIsRefused) {
  boot();
  EXPECT_FALSE(take(nullptr, nullptr));
  EXPECT_EQ(journal().back(), "-[DNDModeAssertionService takeModeAssertionWithDetails:nil]");
}

TEST_F(DoNotDisturb, OlderSystemsHaveASwitchAlone) {
  phone.setup.systemVersion = "14.8";
  phone.setup.missingClasses.insert("DNDModeAssertionService");
  boot();
  EXPECT_FALSE(service());
  const auto gateway =
      objc::adopt(objc::send<objc::Object, "new">(objc_getClass("BBSettingsGateway")));
  objc::send<void, "setBehaviorOverrideStatus:">(gateway.get(), 1L);
  EXPECT_EQ(journal().back(), "-[BBSettingsGateway setBehaviorOverrideStatus:1]");
}

}  // namespace
}  // namespace sim
