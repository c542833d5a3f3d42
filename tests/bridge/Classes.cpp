// Classes written in C++: their state, methods and end.
#include <cstdint>
#include <vector>

#include "objc/Class.h"
#include "tests/bridge/Probe.h"

namespace {

using bridge::Owner;
using bridge::Probe;
using bridge::ProbeView;

struct Counter : objc::Implementation<Counter> {
  long count;
  Owner label;
  double values[8];

  void add(long number) { count += number; }
  long total() const { return count; }
  static long twice(objc::Object receiver) { return 2 * of(receiver).count; }
  static long answer() { return 42; }

  static Class registerClass() {
    return objc::ClassBuilder<Counter>("Counter", "NSObject")
        .method<"add:", &Counter::add>()
        .method<"total", &Counter::total>()
        .method<"twice", &Counter::twice>()
        .classMethod<"answer", &Counter::answer>()
        .finish();
  }
};

// Both have state, of different alignment, and neither knows the other's.
struct alignas(16) LoudCounter : objc::Implementation<LoudCounter> {
  char loudness;
  Owner echo;

  void add(long number) {
    ++loudness;
    super<void, "add:">(10 * number);
  }

  static Class registerClass() {
    return objc::ClassBuilder<LoudCounter>("LoudCounter", Counter::cls())
        .method<"add:", &LoudCounter::add>()
        .finish();
  }
};

struct Classes : bridge::ProbeTest {
  static void SetUpTestSuite() {
    ProbeTest::SetUpTestSuite();
    ASSERT_TRUE(Counter::registerClass());
    ASSERT_TRUE(LoudCounter::registerClass());
  }
  static long total(objc::Object counter) { return objc::send<long, "total">(counter); }
};

TEST_F(Classes, AreFoundByName) {
  EXPECT_EQ(objc_getClass("Counter"), Counter::cls());
  EXPECT_STREQ(class_getName(LoudCounter::cls()), "LoudCounter");
  EXPECT_EQ(class_getSuperclass(LoudCounter::cls()), Counter::cls());
}

TEST_F(Classes, StartWithStateOfZeroes) {
  for (int i = 0; i < 100; ++i) {  // also where freed memory is used again
    auto counter = Counter::make();
    Counter& state = Counter::of(counter);
    EXPECT_EQ(state.count, 0);
    EXPECT_FALSE(state.label);
    for (double value : state.values) EXPECT_EQ(value, 0.0);
    state.count = -1;
    for (double& value : state.values) value = -1;
  }
}

TEST_F(Classes, RunMemberFunctionsOnTheirState) {
  auto counter = Counter::make();
  objc::send<void, "add:">(counter, 3L);
  objc::send<void, "add:">(counter, 4L);
  EXPECT_EQ(total(counter), 7);
  EXPECT_EQ((objc::send<long, "twice">(counter)), 14);
  EXPECT_EQ(Counter::of(counter).count, 7);
}

TEST_F(Classes, KnowTheirObject) {
  auto counter = LoudCounter::make();
  EXPECT_EQ(Counter::of(counter).self(), counter.get().get());
  EXPECT_EQ(LoudCounter::of(counter).self(), counter.get().get());
}

TEST_F(Classes, AnswerClassMethods) {
  EXPECT_EQ((objc::send<long, "answer">(Counter::cls())), 42);
  EXPECT_EQ((objc::send<long, "answer">(LoudCounter::cls())), 42);
}

TEST_F(Classes, RegisterTheTypesOfTheirMethods) {
  auto typesOf = [](SEL name) {
    return method_getTypeEncoding(class_getInstanceMethod(Counter::cls(), name));
  };
  EXPECT_STREQ(typesOf(objc::selector<"add:">()), "v@:q");
  EXPECT_STREQ(typesOf(objc::selector<"total">()), "q@:");
  EXPECT_STREQ(typesOf(objc::selector<"twice">()), "q@:");
}

TEST_F(Classes, KeepStatesOfBaseAndSubclassApart) {
  auto counter = LoudCounter::make();
  objc::send<void, "add:">(counter, 3L);
  EXPECT_EQ(total(counter), 30);
  EXPECT_EQ(LoudCounter::of(counter).loudness, 1);
  EXPECT_EQ(reinterpret_cast<std::uintptr_t>(&LoudCounter::of(counter)) % alignof(LoudCounter), 0u);

  LoudCounter::of(counter).loudness = 99;
  EXPECT_EQ(Counter::of(counter).count, 30);
  EXPECT_FALSE(Counter::of(counter).label);
}

TEST_F(Classes, OverridesDoNotReachTheBase) {
  auto counter = Counter::make();
  objc::send<void, "add:">(counter, 3L);
  EXPECT_EQ(total(counter), 3);
}

TEST_F(Classes, DestroyTheirStateInDealloc) {
  auto counter = Counter::make();
  Counter::of(counter).label = make();
  EXPECT_EQ(Probe::deallocations, 0);
  counter = nullptr;
  EXPECT_EQ(Probe::deallocations, 1);
}

TEST_F(Classes, DestroyTheStateOfTheSubclassFirst) {
  auto counter = LoudCounter::make();
  Counter::of(counter).label = make();
  LoudCounter::of(counter).echo = make();
  std::vector<ProbeView> order;
  const std::vector<ProbeView> expected = {LoudCounter::of(counter).echo,
                                           Counter::of(counter).label};
  Probe::onDealloc = [&](ProbeView probe) { order.push_back(probe); };
  counter = nullptr;
  EXPECT_EQ(order, expected);
}

TEST_F(Classes, EndObjectsThatWereNeverInitialised) {
  auto counter = objc::adopt(objc::Object(objc_alloc(LoudCounter::cls())));
  EXPECT_EQ(Counter::of(counter).count, 0);
  LoudCounter::of(counter).echo = make();
  counter = nullptr;
  EXPECT_EQ(Probe::deallocations, 1);
}

}  // namespace
