#include "simulator/foundation/NSNotificationCenter.h"

#include <functional>

#include "simulator/standin/StandIn.h"
#include "tests/foundation/FoundationTest.h"

namespace sim {
namespace {

using objc::Object;
using objc::send;
using objc::Strong;

Object center() {
  return send<Object, "defaultCenter">(cls("NSNotificationCenter"));
}

struct Listener : objc::Implementation<Listener> {
  std::vector<std::string> heard;
  std::function<void()> whenHeard;

  ~Listener() { send<void, "removeObserver:">(center(), Object(self())); }
  void hear(Object notification) {
    heard.push_back(text(send<Object, "name">(notification)));
    if (whenHeard) whenHeard();
  }

  static void registerClass() {
    if (cls() == nullptr)
      StandIn<Listener>("Test", "NotificationListener", "NSObject")
          .method<"hear:", &Listener::hear>()
          .finish();
  }
};

// Forgets to stop observing.
struct Careless : objc::Implementation<Careless> {
  void hear(Object) { ++calls; }
  static inline int calls = 0;

  static void registerClass() {
    if (cls() == nullptr)
      StandIn<Careless>("Test", "CarelessListener", "NSObject")
          .method<"hear:", &Careless::hear>()
          .finish();
  }
};

class NSNotificationCenterTest : public FoundationTest {
 protected:
  NSNotificationCenterTest() {
    Listener::registerClass();
    Careless::registerClass();
  }
  void TearDown() override {
    EXPECT_TRUE(NSNotificationCenter::of(center()).observations.empty());
    FoundationTest::TearDown();
  }

  static void observe(Object listener, Object name, Object object = nullptr) {
    send<void, "addObserver:selector:name:object:">(center(), listener, sel_registerName("hear:"),
                                                    name, object);
  }
  static void post(const char* name, Object object = nullptr) {
    send<void, "postNotificationName:object:">(center(), string(name), object);
  }
  static Listener& state(Object listener) { return Listener::of(listener); }
  using Lines = std::vector<std::string>;
};

TEST_F(NSNotificationCenterTest, deliversByName) {
  const auto listener = Listener::make();
  observe(listener, string("A"));
  post("A");
  post("B");
  EXPECT_EQ(state(listener).heard, Lines{"A"});
  EXPECT_EQ(journal(), (Lines{"post \"A\"", "post \"B\""}));
}

TEST_F(NSNotificationCenterTest, takesNilAsAny) {
  const auto all = Listener::make();
  const auto fromSender = Listener::make();
  const Object sender = string("sender");
  observe(all, nullptr);
  observe(fromSender, nullptr, sender);
  post("A");
  post("B", sender);
  post("C", string("sender"));
  EXPECT_EQ(state(all).heard, (Lines{"A", "B", "C"}));
  EXPECT_EQ(state(fromSender).heard, Lines{"B"});
}

TEST_F(NSNotificationCenterTest, deliversInOrderOfRegistrationOncePerRegistration) {
  const auto first = Listener::make();
  const auto second = Listener::make();
  std::string order;
  state(first).whenHeard = [&] { order += '1'; };
  state(second).whenHeard = [&] { order += '2'; };
  observe(second, string("A"));
  observe(first, string("A"));
  observe(second, string("A"));
  post("A");
  EXPECT_EQ(order, "212");
}

TEST_F(NSNotificationCenterTest, carriesObjectAndUserInfo) {
  std::string seen;
  const auto block = objc::block<void(Object)>([&](Object notification) {
    seen = notation(send<Object, "object">(notification)) + ' ' +
           notation(
               send<Object, "objectForKey:">(send<Object, "userInfo">(notification), string("k")));
  });
  const Object token = send<Object, "addObserverForName:object:queue:usingBlock:">(
      center(), string("A"), Object(), Object(), block.get());
  send<void, "postNotificationName:object:userInfo:">(center(), string("A"), string("o"),
                                                      dictionary({{string("k"), number(1L)}}));
  EXPECT_EQ(seen, "\"o\" 1");
  send<void, "removeObserver:">(center(), token);
  post("A");
  EXPECT_EQ(seen, "\"o\" 1");
}

TEST_F(NSNotificationCenterTest, leavesOutWhoIsAddedDuringThePost) {
  const auto first = Listener::make();
  const auto late = Listener::make();
  state(first).whenHeard = [&] { observe(late, string("A")); };
  observe(first, string("A"));
  post("A");
  EXPECT_TRUE(state(late).heard.empty());
}

TEST_F(NSNotificationCenterTest, leavesOutWhoIsRemovedDuringThePost) {
  const auto first = Listener::make();
  const auto second = Listener::make();
  state(first).whenHeard = [&] { send<void, "removeObserver:">(center(), second.get()); };
  observe(first, string("A"));
  observe(second, string("A"));
  post("A");
  EXPECT_TRUE(state(second).heard.empty());
}

TEST_F(NSNotificationCenterTest, removesByNameAndObject) {
  const auto listener = Listener::make();
  const Object sender = string("sender");
  observe(listener, string("A"));
  observe(listener, string("B"), sender);
  send<void, "removeObserver:name:object:">(center(), listener.get(), string("A"), Object());
  send<void, "removeObserver:name:object:">(center(), listener.get(), Object(), string("other"));
  post("A");
  post("B", sender);
  EXPECT_EQ(state(listener).heard, Lines{"B"});
}

TEST_F(NSNotificationCenterTest, doesNotKeepObserversAndForgetsDeadOnes) {
  {
    const auto careless = Careless::make();
    observe(careless, string("A"));
    post("A");
  }
  EXPECT_EQ(Careless::calls, 1);
  post("A");
  EXPECT_EQ(Careless::calls, 1);
}

TEST_F(NSNotificationCenterTest, removesAnObserverThatIsBeingDestroyed) {
  auto listener = Listener::make();
  observe(listener, string("A"));
  listener = nullptr;  // its destructor stops observing
  EXPECT_TRUE(NSNotificationCenter::of(center()).observations.empty());
}

TEST_F(NSNotificationCenterTest, postsReadyNotifications) {
  const auto listener = Listener::make();
  observe(listener, string("A"));
  const Object made =
      send<Object, "notificationWithName:object:">(cls("NSNotification"), string("A"), Object());
  send<void, "postNotification:">(center(), made);
  EXPECT_EQ(state(listener).heard, Lines{"A"});
}

}  // namespace
}  // namespace sim
