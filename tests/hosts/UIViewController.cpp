#include "objc/Method.h"
#include "tests/hosts/TestHost.h"

namespace sim {
namespace {

class UIViewControllerTest : public TestHost {
 protected:
  UIViewControllerTest() { boot(); }
};

long designatedCalls = 0;

objc::Object initCounted(objc::Object self, objc::Object name, objc::Object bundle) {
  ++designatedCalls;
  return objc::sendSuper<objc::Object, "initWithNibName:bundle:">(
      self.get(), objc_getClass("CountedController"), name, bundle);
}

TEST_F(UIViewControllerTest, KeepsItsNib) {
  const auto controller = objc::adopt(objc::send<objc::Object, "initWithNibName:bundle:">(
      objc_alloc(objc_getClass("UIViewController")), string("Panel"), nullptr));
  EXPECT_EQ(text(objc::send<objc::Object, "nibName">(controller.get())), "Panel");
  EXPECT_FALSE((objc::send<objc::Object, "nibBundle">(controller.get())));
}

TEST_F(UIViewControllerTest, PlainInitGoesThroughTheDesignatedInitialiser) {
  Class counted = objc_allocateClassPair(objc_getClass("UIViewController"), "CountedController", 0);
  objc::addMethod<"initWithNibName:bundle:", &initCounted>(counted);
  objc_registerClassPair(counted);
  EXPECT_TRUE(objc::adopt(objc::send<objc::Object, "new">(counted)));
  EXPECT_EQ(designatedCalls, 1);
}

}  // namespace
}  // namespace sim
