// Sending: receivers, selectors and arguments.
#include <gtest/gtest.h>

#include "objc/Class.h"
#include "objc/Message.h"

namespace {

struct Recorder : objc::Implementation<Recorder> {
  static inline id object;
  static inline long number;
  static inline int calls;

  void ping() { ++calls; }
  void setObject_number(objc::Object o, long n) { object = o.get(), number = n; }
  static void classPing() { calls += 100; }

  static Class registerClass() {
    return objc::ClassBuilder<Recorder>("Recorder", "NSObject")
        .method<"ping", &Recorder::ping>()
        .method<"setObject:number:", &Recorder::setObject_number>()
        .classMethod<"ping", &Recorder::classPing>()
        .finish();
  }
};

struct RecorderView : objc::Object {
  using Object::Object;
  void ping() const { objc::send<void, "ping">(*this); }
};

struct Messages : testing::Test {
  static void SetUpTestSuite() { ASSERT_TRUE(Recorder::registerClass()); }
  void SetUp() override { Recorder::calls = 0; }
  objc::Strong<RecorderView> recorder = Recorder::make<RecorderView>();
};

TEST_F(Messages, ReachTheMethod) {
  recorder->ping();
  EXPECT_EQ(Recorder::calls, 1);
}

TEST_F(Messages, TakeAnOwnerAsReceiver) {
  objc::send<void, "ping">(recorder);
  EXPECT_EQ(Recorder::calls, 1);
}

TEST_F(Messages, ReachClassMethodsOfClasses) {
  objc::send<void, "ping">(Recorder::cls());
  EXPECT_EQ(Recorder::calls, 100);
}

TEST_F(Messages, ToNilDoNothing) {
  RecorderView().ping();
  objc::send<void, "ping">(objc_getClass("NoClassOfThatName"));
  EXPECT_EQ(Recorder::calls, 0);
}

TEST_F(Messages, TakeNilAsArgument) {
  Recorder::object = recorder.get().get();
  objc::send<void, "setObject:number:">(recorder, nullptr, -5L);
  EXPECT_EQ(Recorder::object, nullptr);
  EXPECT_EQ(Recorder::number, -5);
}

TEST_F(Messages, PassViewsAsTheObjectsTheyAre) {
  objc::send<void, "setObject:number:">(recorder, recorder.get(), 1L);
  EXPECT_EQ(Recorder::object, recorder.get().get());
}

TEST_F(Messages, CanBeAskedForFirst) {
  EXPECT_TRUE(objc::respondsTo<"setObject:number:">(recorder.get()));
  EXPECT_TRUE(objc::respondsTo<"retain">(recorder.get()));
  EXPECT_FALSE(objc::respondsTo<"setObject:">(recorder.get()));
  EXPECT_FALSE(objc::respondsTo<"ping">(objc::Object()));
}

TEST_F(Messages, UseTheSelectorOfTheirName) {
  EXPECT_STREQ(sel_getName(objc::selector<"setObject:number:">()), "setObject:number:");
  EXPECT_EQ(objc::selector<"ping">(), sel_registerName("ping"));
  EXPECT_EQ(objc::selector<"ping">(), objc::selector<"ping">());
}

}  // namespace
