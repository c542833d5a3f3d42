#include "tests/hosts/TestHost.h"

namespace sim {
namespace {

class UIFeedbackGeneratorTest : public TestHost {
 protected:
  void bootWithSupport(long level) {
    phone.setup.feedbackSupportLevel = level;
    boot();
  }

  static objc::Strong<objc::Object> make(const char* className) {
    return objc::adopt(objc::send<objc::Object, "new">(objc_getClass(className)));
  }

  static void playEverything() {
    const auto impact = objc::adopt(objc::send<objc::Object, "initWithStyle:">(
        objc_alloc(objc_getClass("UIImpactFeedbackGenerator")), 4L));
    objc::send<void, "prepare">(impact.get());
    objc::send<void, "impactOccurred">(impact.get());
    objc::send<void, "impactOccurred">(make("UIImpactFeedbackGenerator").get());
    objc::send<void, "notificationOccurred:">(make("UINotificationFeedbackGenerator").get(), 2L);
    objc::send<void, "selectionChanged">(make("UISelectionFeedbackGenerator").get());
  }
};

TEST_F(UIFeedbackGeneratorTest, IsFeltOnACurrentPhone) {
  bootWithSupport(2);
  playEverything();
  const std::vector<std::string> expected = {"haptic impact style 4", "haptic impact style 1",
                                             "haptic notification type 2", "haptic selection"};
  EXPECT_EQ(journal(), expected);
}

TEST_F(UIFeedbackGeneratorTest, IsNotFeltOnAPhoneOfTheFirstGeneration) {
  bootWithSupport(1);
  playEverything();
  EXPECT_TRUE(journal().empty());
}

TEST_F(UIFeedbackGeneratorTest, TheDeviceTellsItsLevel) {
  bootWithSupport(1);
  const auto device = objc::send<objc::Object, "currentDevice">(objc_getClass("UIDevice"));
  EXPECT_EQ(description(
                objc::send<objc::Object, "valueForKey:">(device, string("_feedbackSupportLevel"))),
            "1");
}

}  // namespace
}  // namespace sim
