#include "tweak/support/HapticFeedbackHelper.h"

#include "platform/AudioToolbox.h"

namespace {

enum FeedbackSupport : long { firstGeneration = 1, tapticEngine = 2 };
constexpr unsigned int shortTap = 1519;

// Also asked before a notification, deliberately: the two classes came together.
bool hasImpactGenerator() {
  return objc_getClass("UIImpactFeedbackGenerator") != nullptr;
}

}  // namespace

void HapticFeedbackHelper::sendImpact() {
  sendImpactWithStyle(0);
}

void HapticFeedbackHelper::sendImpactWithStyle(long style) {
  if (!hasImpactGenerator()) return;
  UIImpactFeedbackGenerator::make(style)->impactOccurred();
}

void HapticFeedbackHelper::sendImpactWithNotificationType(long type) {
  switch (UIDevice::currentDevice().feedbackSupportLevel()) {
    case firstGeneration:
      AudioToolbox::playSystemSound(shortTap);
      break;
    case tapticEngine:
      if (hasImpactGenerator()) UINotificationFeedbackGenerator::make()->notificationOccurred(type);
      break;
  }
}

Class HapticFeedbackHelper::registerClass() {
  using Helper = HapticFeedbackHelper;
  return objc::ClassBuilder<Helper>("HapticFeedbackHelper", "NSObject")
      .classMethod<"sendImpact", &Helper::sendImpact>()
      .classMethod<"sendImpactWithStyle:", &Helper::sendImpactWithStyle>()
      .classMethod<"sendImpactWithNotificationType:", &Helper::sendImpactWithNotificationType>()
      .finish();
}
