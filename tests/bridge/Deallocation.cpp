// What is left of a state for whoever asks while its object goes.
#include <utility>
#include <vector>

#include "objc/Class.h"
#include "tests/bridge/Probe.h"

namespace {

using bridge::Owner;
using bridge::Probe;
using bridge::ProbeView;

// What the methods of an object give while it is deallocated.
struct Answers {
  ProbeView strong, other, weak;
  long number;
  bool flag;

  static Answers of(objc::Object object) {
    return {objc::send<ProbeView, "strong">(object), objc::send<ProbeView, "other">(object),
            objc::send<ProbeView, "weak">(object), objc::send<long, "number">(object),
            objc::send<bool, "flag">(object)};
  }
};

// A class of the host, say: its dealloc asks what its subclass overrides.
struct Asker : objc::Implementation<Asker> {
  static inline std::vector<Answers> heard;

  ~Asker() { heard.push_back(Answers::of(objc::Object(self()))); }
  ProbeView none() { return nullptr; }
  long zero() { return 0; }
  bool no() { return false; }

  static Class registerClass() {
    return objc::ClassBuilder<Asker>("Asker", "NSObject")
        .method<"strong", &Asker::none>()
        .method<"other", &Asker::none>()
        .method<"weak", &Asker::none>()
        .method<"number", &Asker::zero>()
        .method<"flag", &Asker::no>()
        .finish();
  }
};

struct Answerer : objc::Implementation<Answerer> {
  Owner strong, other;
  objc::Weak<ProbeView> weak;
  long number;
  bool flag;

  static Class registerClass() {
    return objc::ClassBuilder<Answerer>("Answerer", "Asker")
        .property<"strong", &Answerer::strong>()
        .property<"other", &Answerer::other>()
        .property<"weak", &Answerer::weak>()
        .property<"number", &Answerer::number>()
        .property<"flag", &Answerer::flag>()
        .finish();
  }
};

struct Deallocation : bridge::ProbeTest {
  static void SetUpTestSuite() {
    ProbeTest::SetUpTestSuite();
    ASSERT_TRUE(Asker::registerClass());
    ASSERT_TRUE(Answerer::registerClass());
  }
  Deallocation() { Asker::heard.clear(); }

  objc::Strong<objc::Object> answerer(Owner strong, Owner other) {
    auto made = Answerer::make();
    auto& state = Answerer::of(made);
    state.weak = objc::weak(strong.get());
    state.strong = std::move(strong);
    state.other = std::move(other);
    state.number = 42;
    state.flag = true;
    return made;
  }
};

TEST_F(Deallocation, LeavesEmptyMembersToTheSuperclass) {
  const objc::AutoreleasePool pool;
  const Owner strong = make(), other = make();
  answerer(strong, other) = nullptr;
  ASSERT_EQ(Asker::heard.size(), 1u);
  EXPECT_FALSE(Asker::heard[0].strong);
  EXPECT_FALSE(Asker::heard[0].other);
  EXPECT_FALSE(Asker::heard[0].weak);
  EXPECT_EQ(Asker::heard[0].number, 0);
  EXPECT_FALSE(Asker::heard[0].flag);
}

TEST_F(Deallocation, LeavesNothingThatWasReleasedWithIt) {
  const objc::AutoreleasePool pool;
  auto gone = answerer(make(), make());
  gone = nullptr;
  EXPECT_EQ(Probe::deallocations, 2);
  ASSERT_EQ(Asker::heard.size(), 1u);
  EXPECT_FALSE(Asker::heard[0].strong);
  EXPECT_FALSE(Asker::heard[0].weak);
}

// Members go in the reverse of their order.
TEST_F(Deallocation, OfAMemberFindsItGoneAndThoseBeforeItInPlace) {
  const objc::AutoreleasePool pool;
  auto gone = answerer(make(), make());
  const ProbeView strong = Answerer::of(gone).strong;
  std::vector<Answers> heard;
  Probe::onDealloc = [&heard, object = gone.get()](ProbeView) {
    heard.push_back(Answers::of(object));
  };
  gone = nullptr;
  ASSERT_EQ(heard.size(), 2u);
  EXPECT_FALSE(heard[0].other);
  EXPECT_EQ(heard[0].strong, strong);
  EXPECT_EQ(heard[0].number, 42);
  EXPECT_FALSE(heard[1].other);
  EXPECT_FALSE(heard[1].strong);
}

}  // namespace
