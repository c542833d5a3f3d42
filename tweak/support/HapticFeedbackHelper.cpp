#include "tweak/support/HapticFeedbackHelper.h"

#include "objc/Class.h"
#include "platform/AudioToolbox.h"
#include "platform/UIKit.h"

namespace {

enum FeedbackSupport : long { firstGeneration = 1, tapticEngine = 2 };
constexpr unsigned int shortTap = 1519;

// Asked before a notification, which has a class of its own: the two came with one system.
// A phone with only the other class would buzz if that one were asked for
// (haptics-without-the-impact-class).
bool hasImpactGenerator() {
  return UIImpactFeedbackGenerator::cls() != nullptr;
}

struct HapticFeedbackHelperImplementation
    : objc::Implementation<HapticFeedbackHelperImplementation> {
  static void sendImpact() {
    constexpr long light = 0;
    sendImpactWithStyle(light);
  }

  static void sendImpactWithStyle(long style) {
    UIImpactFeedbackGenerator::make(style)->impactOccurred();
  }

  static void sendImpactWithNotificationType(long type) {
    switch (UIDevice::currentDevice().feedbackSupportLevel()) {
      case firstGeneration:
        AudioToolbox::playSystemSound(shortTap);
        break;
      case tapticEngine:
        if (hasImpactGenerator())
          UINotificationFeedbackGenerator::make()->notificationOccurred(type);
        break;
    }
  }
};

}  // namespace

Class HapticFeedbackHelper::cls() {
  return HapticFeedbackHelperImplementation::cls();
}

objc::Registration HapticFeedbackHelper::registerClass() {
  using Self = HapticFeedbackHelperImplementation;
  return objc::ClassBuilder<Self>("HapticFeedbackHelper", "NSObject")
      .classMethod<"sendImpact", &Self::sendImpact>()
      .classMethod<"sendImpactWithStyle:", &Self::sendImpactWithStyle>()
      .classMethod<"sendImpactWithNotificationType:", &Self::sendImpactWithNotificationType>()
      .finish();
}
