#include "simulator/standin/StandIn.h"
#include "tests/foundation/FoundationTest.h"

namespace sim {
namespace {

using objc::Object;
using objc::send;

struct Size {
  double width, height;
};
struct Rectangle {
  double x, y, width, height;
};

}  // namespace
}  // namespace sim

template <>
struct objc::StructEncoding<sim::Size> {
  static constexpr auto value = objc::FixedString("{CGSize=dd}");
};
template <>
struct objc::StructEncoding<sim::Rectangle> {
  static constexpr auto value = objc::FixedString("{CGRect={CGPoint=dd}{CGSize=dd}}");
};

namespace sim {
namespace {

// One accessor of every kind that key-value coding looks for.
struct Lamp : objc::Implementation<Lamp> {
  bool on = false;
  long level = 0;
  float warmth = 0;
  objc::Strong<Object> label;
  objc::Strong<Object> fireTimer;

  bool isOn() const { return on; }
  void setOn(bool value) { on = value; }
  long getLevel() const { return level; }
  void setLevel(long value) { level = value; }
  Object timer() const { return fireTimer; }
  Size size() const { return {3, 4}; }
  Rectangle frame() const { return {0, 20, 320, 44.5}; }

  static Class registerClass() {
    if (cls() == nullptr) {
      StandIn<Lamp>("Test", "Lamp", "NSObject")
          .method<"isOn", &Lamp::isOn>()
          .method<"setOn:", &Lamp::setOn>()
          .method<"getLevel", &Lamp::getLevel>()
          .method<"setLevel:", &Lamp::setLevel>()
          .property<"warmth", &Lamp::warmth>()
          .property<"label", &Lamp::label>()
          .method<"_fireTimer", &Lamp::timer>()
          .method<"size", &Lamp::size>()
          .method<"frame", &Lamp::frame>()
          .finish();
    }
    return cls();
  }
};

class KeyValueCodingTest : public FoundationTest {
 protected:
  KeyValueCodingTest() { Lamp::registerClass(); }

  static objc::Strong<Object> lamp() { return Lamp::make(); }
  static Object value(Object object, const char* key) {
    return send<Object, "valueForKey:">(object, string(key));
  }
  static void set(Object object, Object newValue, const char* key) {
    send<void, "setValue:forKey:">(object, newValue, string(key));
  }
};

TEST_F(KeyValueCodingTest, findsEveryAccessor) {
  const auto object = lamp();
  Lamp& state = Lamp::of(object.get());
  state.on = true;
  state.level = -3;
  state.label = objc::retain(string("desk"));
  EXPECT_EQ(notation(value(object, "on")), "YES");
  EXPECT_EQ(notation(value(object, "level")), "-3");
  EXPECT_EQ(notation(value(object, "label")), "\"desk\"");
  EXPECT_EQ(notation(value(object, "size")), "{3, 4}");
  EXPECT_EQ(notation(value(object, "frame")), "{{0, 20}, {320, 44.5}}");
}

TEST_F(KeyValueCodingTest, findsWhatIsNamedAsAVariable) {
  const auto object = lamp();
  Lamp::of(object.get()).fireTimer = objc::retain(string("timer"));
  EXPECT_EQ(notation(value(object, "_fireTimer")), "\"timer\"");
  EXPECT_EQ(notation(value(object, "fireTimer")), "\"timer\"");
}

TEST_F(KeyValueCodingTest, setsThroughSetters) {
  const auto object = lamp();
  set(object, number(true), "on");
  set(object, string("12"), "level");
  set(object, number(0.5), "warmth");
  set(object, string("hall"), "label");
  const Lamp& state = Lamp::of(object.get());
  EXPECT_TRUE(state.on);
  EXPECT_EQ(state.level, 12);
  EXPECT_EQ(state.warmth, 0.5f);
  EXPECT_EQ(text(state.label), "hall");
  set(object, nullptr, "label");
  EXPECT_FALSE(state.label);
}

TEST_F(KeyValueCodingTest, readsAndWritesVariables) {
  if (cls("Variables") == nullptr) {
    Class made = objc_allocateClassPair(cls("NSObject"), "Variables", 0);
    class_addIvar(made, "_count", sizeof(int), 2, "i");
    class_addIvar(made, "isOpen", sizeof(bool), 0, "B");
    class_addIvar(made, "name", sizeof(id), 3, "@\"NSString\"");
    objc_registerClassPair(made);
  }
  const auto object = objc::adopt(Object(objc_alloc_init(cls("Variables"))));
  set(object, number(7L), "count");
  set(object, number(true), "open");
  set(object, string("first"), "name");
  set(object, string("second"), "name");
  EXPECT_EQ(notation(value(object, "count")), "7");
  EXPECT_EQ(notation(value(object, "_count")), "7");
  EXPECT_EQ(notation(value(object, "open")), "YES");
  EXPECT_EQ(notation(value(object, "name")), "\"second\"");
  set(object, nullptr, "name");
  EXPECT_FALSE(value(object, "name"));
}

TEST_F(KeyValueCodingTest, followsPaths) {
  const auto outer = lamp();
  const auto inner = lamp();
  Lamp::of(outer.get()).label = objc::retain(inner.get());
  Lamp::of(inner.get()).label = objc::retain(string("desk"));
  EXPECT_EQ(notation(send<Object, "valueForKeyPath:">(outer.get(), string("label.label.length"))),
            "4");
  send<void, "setValue:forKeyPath:">(outer.get(), number(9L), string("label.level"));
  EXPECT_EQ(Lamp::of(inner.get()).level, 9);
  Lamp::of(inner.get()).label = nullptr;
  EXPECT_FALSE((send<Object, "valueForKeyPath:">(outer.get(), string("label.label.length"))));
}

TEST_F(KeyValueCodingTest, asksCollectionsForWhatTheyHold) {
  const Object list = array({string("a"), string("bcd")});
  EXPECT_EQ(
      description(send<Object, "componentsJoinedByString:">(value(list, "length"), string(","))),
      "1,3");
  EXPECT_EQ(notation(send<Object, "valueForKeyPath:">(list, string("@count"))), "2");
  const Object entries = dictionary({{string("length"), string("value")}});
  EXPECT_EQ(notation(value(entries, "length")), "\"value\"");
  const Object changing =
      send<Object, "dictionaryWithDictionary:">(cls("NSMutableDictionary"), entries);
  set(changing, nullptr, "length");
  EXPECT_EQ(notation(value(changing, "@count")), "0");
}

TEST_F(KeyValueCodingTest, safelyGivesNilForUnknownKeys) {
  const auto object = lamp();
  EXPECT_FALSE((send<Object, "safeValueForKey:">(object.get(), string("colour"))));
  EXPECT_EQ(notation(send<Object, "safeValueForKey:">(object.get(), string("level"))), "0");
}

using KeyValueCodingDeathTest = KeyValueCodingTest;

TEST_F(KeyValueCodingDeathTest, stopsForUnknownKeys) {
  const auto object = lamp();
  EXPECT_DEATH(value(object, "colour"),
               "\\[<Lamp: 0x[0-9a-f]+> valueForUndefinedKey:\\]: this class is not key value "
               "coding-compliant for the key colour\\.");
  EXPECT_DEATH(set(object, number(1L), "colour"),
               "setValue:forUndefinedKey:\\]: this class is not key value coding-compliant for the "
               "key colour\\.");
  // The state of a class written in C++ is no variable of the platform's kind.
  EXPECT_DEATH(value(object, "state"), "for the key state");
}

TEST_F(KeyValueCodingDeathTest, stopsForNilScalars) {
  const auto object = lamp();
  EXPECT_DEATH(set(object, nullptr, "level"),
               "setNilValueForKey\\]: could not set nil as the value for the key level\\.");
}

}  // namespace
}  // namespace sim
