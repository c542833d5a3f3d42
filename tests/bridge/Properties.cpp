// Declared properties backed by members, and attached to classes of the host.
#include "objc/Association.h"
#include "objc/Property.h"
#include "tests/bridge/Probe.h"

namespace {

using bridge::Owner;
using bridge::Probe;
using bridge::ProbeView;

struct Settings : objc::Implementation<Settings> {
  long count;
  bool enabled;
  double volume;
  Owner probe;
  ProbeView parent;  // not owned

  bool isLoud() const { return volume > 0.5; }

  static Class registerClass() {
    return objc::ClassBuilder<Settings>("Settings", "NSObject")
        .property<"count", &Settings::count>()
        .readonlyProperty<"enabled", &Settings::enabled>()
        .property<"URL", &Settings::volume>()
        .property<"probe", &Settings::probe>()
        .readonlyProperty<"fixedProbe", &Settings::probe>()
        .property<"parent", &Settings::parent>()
        .computedProperty<"isLoud", &Settings::isLoud>()
        .finish();
  }
};

struct Properties : bridge::ProbeTest {
  static void SetUpTestSuite() {
    ProbeTest::SetUpTestSuite();
    ASSERT_TRUE(Settings::registerClass());
  }
  static const char* attributes(const char* name) {
    objc_property_t property = class_getProperty(Settings::cls(), name);
    return property != nullptr ? property_getAttributes(property) : "no such property";
  }
  static bool responds(const char* name) {
    return class_respondsToSelector(Settings::cls(), sel_registerName(name));
  }
  objc::Strong<objc::Object> settings = Settings::make();
};

TEST_F(Properties, AreDeclared) {
  EXPECT_STREQ(attributes("count"), "Tq,N");
  EXPECT_STREQ(attributes("enabled"), "TB,R,N");
  EXPECT_STREQ(attributes("URL"), "Td,N");
  EXPECT_STREQ(attributes("probe"), "T@,&,N");
  EXPECT_STREQ(attributes("fixedProbe"), "T@,R,N");
  EXPECT_STREQ(attributes("parent"), "T@,N");
  EXPECT_STREQ(attributes("isLoud"), "TB,R,N");
}

TEST_F(Properties, HaveAccessorsUnderTheirNames) {
  EXPECT_TRUE(responds("count") && responds("setCount:"));
  EXPECT_TRUE(responds("URL") && responds("setURL:"));
  EXPECT_TRUE(responds("enabled"));
  EXPECT_FALSE(responds("setEnabled:"));
  EXPECT_FALSE(responds("setcount:"));
}

TEST_F(Properties, ReadAndWriteTheMember) {
  objc::send<void, "setCount:">(settings, 12L);
  EXPECT_EQ(Settings::of(settings).count, 12);
  EXPECT_EQ((objc::send<long, "count">(settings)), 12);
  Settings::of(settings).enabled = true;
  EXPECT_TRUE((objc::send<bool, "enabled">(settings)));
  objc::send<void, "setURL:">(settings, 0.5);
  EXPECT_EQ((objc::send<double, "URL">(settings)), 0.5);
}

TEST_F(Properties, MayBeComputed) {
  EXPECT_FALSE((objc::send<bool, "isLoud">(settings)));
  objc::send<void, "setURL:">(settings, 0.6);
  EXPECT_TRUE((objc::send<bool, "isLoud">(settings)));
  EXPECT_FALSE(responds("setIsLoud:"));
}

TEST_F(Properties, OfOwnersRetainAndRelease) {
  Owner probe = make();
  objc::send<void, "setProbe:">(settings, probe.get());
  EXPECT_EQ(probe->retainCount(), 2u);
  EXPECT_EQ((objc::send<ProbeView, "probe">(settings)), probe.get());
  EXPECT_EQ((objc::send<ProbeView, "fixedProbe">(settings)), probe.get());
  EXPECT_EQ(probe->retainCount(), 2u);

  objc::send<void, "setProbe:">(settings, probe.get());
  EXPECT_EQ(probe->retainCount(), 2u);
  objc::send<void, "setProbe:">(settings, nullptr);
  EXPECT_EQ(probe->retainCount(), 1u);
  EXPECT_FALSE((objc::send<ProbeView, "probe">(settings)));
}

TEST_F(Properties, OfViewsOwnNothing) {
  Owner parent = make();
  objc::send<void, "setParent:">(settings, parent.get());
  EXPECT_EQ(parent->retainCount(), 1u);
  EXPECT_EQ((objc::send<ProbeView, "parent">(settings)), parent.get());
}

TEST_F(Properties, EndWithTheObject) {
  objc::send<void, "setProbe:">(settings, make().get());
  EXPECT_EQ(Probe::deallocations, 0);
  settings = nullptr;
  EXPECT_EQ(Probe::deallocations, 1);
}

using Button = objc::Association<"dozewellButton", ProbeView>;
ProbeView button(objc::Object host) {
  return Button::get(host);
}
void setButton(objc::Object host, ProbeView value) {
  Button::set(host, value);
}

TEST_F(Properties, AttachToClassesOfTheHost) {
  objc::addAttachedProperty<"dozewellButton", button, setButton>(Settings::cls(),
                                                                 "@\"DozewellButton\"");
  EXPECT_STREQ(attributes("dozewellButton"), "T@\"DozewellButton\",&,N");
  objc::send<void, "setDozewellButton:">(settings, make().get());
  EXPECT_EQ((objc::send<ProbeView, "dozewellButton">(settings)).retainCount(), 1u);
  settings = nullptr;
  EXPECT_EQ(Probe::deallocations, 1);
}

long steps(objc::Object) {
  return 3;
}
void setSteps(objc::Object, long) {}

TEST_F(Properties, AttachNumbersWithoutOwnership) {
  objc::addAttachedProperty<"steps", steps, setSteps>(Settings::cls(), "q");
  EXPECT_STREQ(attributes("steps"), "Tq,N");
  EXPECT_EQ((objc::send<long, "steps">(settings)), 3);
}

}  // namespace
