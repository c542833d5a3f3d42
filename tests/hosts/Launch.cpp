// The application object, the device, and the classes of the media module that others build on.
#include "objc/Class.h"
#include "objc/Hook.h"
#include "simulator/coregraphics/Geometry.h"
#include "tests/hosts/TestHost.h"

namespace sim {
namespace {

using Launch = TestHost;

objc::Object sharedApplication() {
  return objc::send<objc::Object, "sharedApplication">(objc_getClass("UIApplication"));
}

TEST_F(Launch, MakesTheSharedApplication) {
  boot();
  EXPECT_FALSE(sharedApplication());
  launchSpringBoard();
  EXPECT_TRUE(isKindOf(sharedApplication(), "SpringBoard"));
  EXPECT_TRUE(isKindOf(sharedApplication(), "UIResponder"));
  EXPECT_EQ(count("-[SpringBoard applicationDidFinishLaunching:]"), 1);
}

TEST_F(Launch, TheDeviceTellsItsSystemVersion) {
  phone.setup.systemVersion = "12.5.7";
  boot();
  const auto device = objc::send<objc::Object, "currentDevice">(objc_getClass("UIDevice"));
  EXPECT_EQ(text(objc::send<objc::Object, "systemVersion">(device)), "12.5.7");
  EXPECT_EQ(
      notation(objc::send<objc::Object, "valueForKey:">(device, string("_feedbackSupportLevel"))),
      "2");
}

TEST_F(Launch, PackageDescriptionsKeepWhatTheyAreMadeOf) {
  boot();
  const auto description = objc::adopt(objc::send<objc::Object, "initWithPackageName:inBundle:">(
      objc_alloc(objc_getClass("CCUICAPackageDescription")), string("Moon"), string("a bundle")));
  EXPECT_EQ(text(objc::send<objc::Object, "packageName">(description.get())), "Moon");
  EXPECT_EQ(text(objc::send<objc::Object, "bundle">(description.get())), "a bundle");
}

TEST_F(Launch, TheHeaderHasARoutingButton) {
  boot();
  const auto header =
      objc::adopt(objc::send<objc::Object, "new">(objc_getClass("MRUNowPlayingHeaderView")));
  const auto button = objc::send<objc::Object, "routingButton">(header.get());
  EXPECT_TRUE(isKindOf(button, "MRUNowPlayingRoutingButton"));
  EXPECT_EQ((objc::send<objc::Object, "superview">(button)), header.get());
  objc::send<void, "setLayout:">(header.get(), 2L);
  EXPECT_EQ((objc::send<long, "layout">(header.get())), 2);
}

TEST_F(Launch, ABareHeaderNeedsNoRoutingButtonClass) {
  phone.setup.missingClasses.insert("MRUNowPlayingRoutingButton");
  boot();
  const auto header =
      objc::adopt(objc::send<objc::Object, "new">(objc_getClass("MRUNowPlayingHeaderView")));
  EXPECT_TRUE(header);
  EXPECT_FALSE((objc::send<objc::Object, "routingButton">(header.get())));
}

}  // namespace
}  // namespace sim
