// The states of a layer tree.
#include "simulator/quartzcore/states/CAStateElement.h"
#include "tests/quartzcore/PackageTest.h"

namespace sim {
namespace {

std::string setting(const std::string& keyPath, const std::string& value) {
  return "<LKStateSetValue targetId=\"#1\" keyPath=\"" + keyPath + "\"><value " + value +
         "/></LKStateSetValue>";
}
std::string state(const std::string& attributes, const std::string& elements) {
  return "<LKState " + attributes + "><elements>" + elements + "</elements></LKState>";
}

// A root with one shape, of the id #1.
class States : public PackageTest {
 protected:
  void readTree(const std::string& states) {
    root = read(
        "<CALayer><sublayers><CAShapeLayer id=\"#1\" opacity=\"0.5\" position=\"3 4\">"
        "<fillColor value=\"1 0 0\"/></CAShapeLayer></sublayers><states>" +
        states + "</states></CALayer>");
    shape = send<Object, "objectAtIndex:">(send<Object, "sublayers">(root.get()), 0UL);
    controller = objc::adopt(
        send<Object, "initWithLayer:">(objc_alloc(cls("CAStateController")), root.get()));
  }
  void take(const char* name) {
    const Object wanted = send<Object, "stateWithName:">(root.get(), string(name));
    send<void, "setState:ofLayer:">(controller.get(), wanted, root.get());
  }
  float opacity() const { return send<float, "opacity">(shape); }

  void TearDown() override {
    controller = {};
    root = {};
    PackageTest::TearDown();
  }

  Strong<Object> root;
  Strong<Object> controller;
  Object shape;
};

TEST_F(States, SetValuesAndTakeThemBack) {
  readTree(state("name=\"on\"", setting("opacity", "type=\"real\" value=\"1\"")));
  EXPECT_EQ(opacity(), 0.5F);
  take("on");
  EXPECT_EQ(opacity(), 1.0F);
  EXPECT_EQ(text(send<Object, "name">(send<Object, "stateOfLayer:">(controller.get(), root.get()))),
            "on");
  take("no such state");
  EXPECT_EQ(opacity(), 0.5F);
  EXPECT_FALSE((send<Object, "stateOfLayer:">(controller.get(), root.get())));
}

TEST_F(States, FollowEachOtherFromTheTreeAsItWasMade) {
  readTree(state("name=\"on\"", setting("opacity", "value=\"1\"")) +
           state("name=\"moved\"", setting("position.x", "type=\"integer\" value=\"30\"")));
  take("on");
  take("moved");
  EXPECT_EQ(opacity(), 0.5F);
  EXPECT_EQ((send<CGPoint, "position">(shape)), (CGPoint{30, 4}));
  take("on");
  EXPECT_EQ((send<CGPoint, "position">(shape)), (CGPoint{3, 4}));
}

TEST_F(States, SetValuesOfEveryType) {
  readTree(state("name=\"on\"",
                 setting("fillColor", "type=\"CGColor\" value=\"0 0 1\" opacity=\"0.5\"") +
                     setting("name", "type=\"string\" value=\"lit\"") +
                     setting("hidden", "type=\"bool\" value=\"1\"") +
                     setting("bounds", "type=\"CGRect\" value=\"0 0 7 8\"") +
                     setting("tag", "value=\"5\"")));
  take("on");
  EXPECT_EQ(*CAShapeLayer::of(shape).fill(), (ColorComponents{{0, 0, 1, 0.5}, false}));
  EXPECT_EQ(text(send<Object, "name">(shape)), "lit");
  EXPECT_TRUE((send<bool, "isHidden">(shape)));
  EXPECT_EQ((send<CGRect, "bounds">(shape)), (CGRect{{0, 0}, {7, 8}}));
  EXPECT_EQ(notation(send<Object, "valueForKey:">(shape, string("tag"))), "5");
  take("");
  EXPECT_EQ(*CAShapeLayer::of(shape).fill(), (ColorComponents{{1, 0, 0, 1}, false}));
  EXPECT_FALSE((send<Object, "name">(shape)));
}

TEST_F(States, ReachIntoTransforms) {
  readTree(state("name=\"on\"", setting("transform.scale", "value=\"2\"") +
                                    setting("transform.rotation.z", "value=\"1.5\"") +
                                    setting("transform.translation.x", "value=\"9\"")));
  take("on");
  const auto member = [&](const char* path) {
    return send<double, "doubleValue">(send<Object, "valueForKeyPath:">(shape, string(path)));
  };
  EXPECT_NEAR(member("transform.scale.x"), 2, 1e-12);
  EXPECT_NEAR(member("transform.scale.y"), 2, 1e-12);
  EXPECT_NEAR(member("transform.rotation"), 1.5, 1e-12);
  EXPECT_EQ(member("transform.translation.x"), 9);
  take("");
  EXPECT_NEAR(member("transform.scale"), 1, 1e-12);
  EXPECT_NEAR(member("transform.rotation.z"), 0, 1e-12);
}

TEST_F(States, BuildOnTheOneTheyAreBasedOn) {
  readTree(state("name=\"dim\"", setting("opacity", "value=\"0.25\"")) +
           state("name=\"far\" basedOn=\"dim\"", setting("position.y", "value=\"40\"")) +
           state("name=\"a\" basedOn=\"b\"", setting("opacity", "value=\"0.75\"")) +
           state("name=\"b\" basedOn=\"a\"", ""));
  take("far");
  EXPECT_EQ(opacity(), 0.25F);
  EXPECT_EQ((send<CGPoint, "position">(shape)), (CGPoint{3, 40}));
  take("a");  // one is based on the other
  EXPECT_EQ(opacity(), 0.75F);
  take("");
  EXPECT_EQ(opacity(), 0.5F);
}

TEST_F(States, DoNothingWhenDisabledAndBeginWithTheInitialOne) {
  readTree(state("name=\"off\" enabled=\"0\"", setting("opacity", "value=\"0\"")) +
           state("name=\"first\" initial=\"1\"", setting("opacity", "value=\"0.25\"")));
  take("off");
  EXPECT_EQ(opacity(), 0.5F);
  send<void, "setInitialStatesOfLayer:">(controller.get(), root.get());
  EXPECT_EQ(opacity(), 0.25F);
}

TEST_F(States, AddAndRemoveLayers) {
  readTree(state("name=\"more\"",
                 "<LKStateAddElement targetId=\"#1\" keyPath=\"sublayers\">"
                 "<object type=\"CALayer\" name=\"added\"/></LKStateAddElement>"));
  take("more");
  const Object inside = send<Object, "sublayers">(shape);
  ASSERT_EQ((send<unsigned long, "count">(inside)), 1UL);
  EXPECT_EQ(text(send<Object, "name">(send<Object, "objectAtIndex:">(inside, 0UL))), "added");
  take("");
  EXPECT_FALSE((send<Object, "sublayers">(shape)));
}

TEST_F(States, NeverPutALayerIntoItself) {
  readTree("");
  const auto element = objc::adopt(Object(objc_alloc_init(cls("CAStateAddElement"))));
  send<void, "setTarget:">(element.get(), shape);
  send<void, "setKeyPath:">(element.get(), string("sublayers"));
  send<void, "setObject:">(element.get(), root.get());
  EXPECT_TRUE(applyStateElement(element).empty());
  EXPECT_FALSE((send<Object, "sublayers">(shape)));
}

TEST_F(States, HaveTransitionsWithTheirAnimations) {
  const auto layer = read(
      "<CALayer id=\"#2\"><stateTransitions><LKStateTransition fromState=\"*\" toState=\"on\">"
      "<elements><LKStateTransitionElement key=\"opacity\" targetId=\"#2\">"
      "<animation type=\"CASpringAnimation\" keyPath=\"opacity\" duration=\"0.25\" mass=\"2\"/>"
      "</LKStateTransitionElement></elements></LKStateTransition></stateTransitions></CALayer>");
  const Object way =
      send<Object, "objectAtIndex:">(send<Object, "stateTransitions">(layer.get()), 0UL);
  EXPECT_EQ(text(send<Object, "fromState">(way)), "*");
  EXPECT_EQ(text(send<Object, "toState">(way)), "on");
  const Object step = send<Object, "objectAtIndex:">(send<Object, "elements">(way), 0UL);
  EXPECT_EQ(text(send<Object, "key">(step)), "opacity");
  EXPECT_EQ((send<Object, "target">(step)), layer.get());
  const Object animation = send<Object, "animation">(step);
  EXPECT_TRUE(isKindOf(animation, "CASpringAnimation"));
  EXPECT_EQ(notation(send<Object, "valueForKey:">(animation, string("duration"))), "0.25");
}

}  // namespace
}  // namespace sim
