#include "simulator/controlcenter/ControlCenter.h"
#include "tests/hosts/TestHost.h"

namespace sim {
namespace {

using ModuleContainers = TestHost;

TEST_F(ModuleContainers, ThereIsOneForEachModule) {
  boot();
  const objc::Object one = moduleContainer("com.example.one");
  EXPECT_EQ(text(objc::send<objc::Object, "moduleIdentifier">(one)), "com.example.one");
  EXPECT_EQ(moduleContainer("com.example.one"), one);
  EXPECT_FALSE(moduleContainer("com.example.two") == one);
}

TEST_F(ModuleContainers, CanBeExpanded) {
  boot();
  const objc::Object container = moduleContainer("com.example.one");
  EXPECT_FALSE((objc::send<bool, "isExpanded">(container)));
  objc::send<void, "expandModule">(container);
  advance(0);
  EXPECT_TRUE((objc::send<bool, "isExpanded">(container)));
  EXPECT_FALSE((objc::send<bool, "isExpanded">(moduleContainer("com.example.two"))));
}

TEST_F(ModuleContainers, AreAbsentWithTheirClass) {
  phone.setup.missingClasses.insert("CCUIContentModuleContainerViewController");
  boot();
  EXPECT_FALSE(moduleContainer("com.example.one"));
}

}  // namespace
}  // namespace sim
