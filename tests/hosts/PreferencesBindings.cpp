// The variables that follow a domain.
#include "tests/hosts/TestPreferences.h"

namespace sim {
namespace {

class PreferencesBindings : public TestPreferences {
 protected:
  void bind(objc::Object preferences, bool* address, bool otherwise, const char* key) {
    objc::send<void, "registerBool:default:forKey:">(preferences, address, otherwise, string(key));
  }
  void bind(objc::Object preferences, long* address, long otherwise, const char* key) {
    objc::send<void, "registerInteger:default:forKey:">(preferences, address, otherwise,
                                                        string(key));
  }
};

TEST_F(PreferencesBindings, AnEmptyDomainGivesTheDefaults) {
  boot();
  const auto preferences = open();
  bool enabled = false;
  long length = 0;
  unsigned long count = 0;
  double size = 0;
  double exact = 0;
  id name = nullptr;
  bind(preferences.get(), &enabled, true, "enabled");
  bind(preferences.get(), &length, 15, "length");
  objc::send<void, "registerUnsignedInteger:default:forKey:">(preferences.get(), &count, 7UL,
                                                              string("count"));
  objc::send<void, "registerFloat:default:forKey:">(preferences.get(), &size, 1.5, string("size"));
  objc::send<void, "registerDouble:default:forKey:">(preferences.get(), &exact, 2.5,
                                                     string("exact"));
  objc::send<void, "registerObject:default:forKey:">(preferences.get(), &name, string("Pillow"),
                                                     string("name"));
  EXPECT_TRUE(enabled);
  EXPECT_EQ(length, 15);
  EXPECT_EQ(count, 7U);
  EXPECT_EQ(size, 1.5);
  EXPECT_EQ(exact, 2.5);
  EXPECT_EQ(text(objc::Object(name)), "Pillow");
}

TEST_F(PreferencesBindings, StoredValuesWin) {
  writeSetting(file(), "enabled", false);
  writeSetting(file(), "length", -3L);
  boot();
  const auto preferences = open();
  bool enabled = true;
  long length = 0;
  bind(preferences.get(), &enabled, true, "enabled");
  bind(preferences.get(), &length, 15, "length");
  EXPECT_FALSE(enabled);
  EXPECT_EQ(length, -3);
}

TEST_F(PreferencesBindings, OtherTypesAreConverted) {
  writeSetting(file(), "text", std::string("20"));
  writeSetting(file(), "word", std::string("soon"));
  writeSetting(file(), "real", 7.9);
  writeSetting(file(), "flag", true);
  writeSetting(file(), "data", std::vector<char>{1, 2});
  boot();
  const auto preferences = open();
  const auto read = [&](const char* key) {
    long value = -1;
    bind(preferences.get(), &value, 15, key);
    // Bound again, so that the address may go.
    static long elsewhere;
    bind(preferences.get(), &elsewhere, 15, key);
    return value;
  };
  EXPECT_EQ(read("text"), 20);
  EXPECT_EQ(read("word"), 0);
  EXPECT_EQ(read("real"), 7);
  EXPECT_EQ(read("flag"), 1);
  EXPECT_EQ(read("data"), 0);
  EXPECT_EQ(read("absent"), 15);
}

TEST_F(PreferencesBindings, StringsAreNoUnsignedNumbers) {
  writeSetting(file(), "count", std::string("20"));
  boot();
  unsigned long count = 1;
  const auto preferences = open();
  objc::send<void, "registerUnsignedInteger:default:forKey:">(preferences.get(), &count, 7UL,
                                                              string("count"));
  EXPECT_EQ(count, 0U);
}

TEST_F(PreferencesBindings, FollowWritesOfTheProcess) {
  boot();
  const auto preferences = open();
  bool enabled = false;
  bind(preferences.get(), &enabled, false, "enabled");
  objc::send<void, "setBool:forKey:">(preferences.get(), true, string("enabled"));
  EXPECT_TRUE(enabled);
  objc::send<void, "removeObjectForKey:">(preferences.get(), string("enabled"));
  EXPECT_FALSE(enabled);
}

TEST_F(PreferencesBindings, FollowChangesOfAnotherProcessWhenTheMainQueueRuns) {
  boot();
  const auto preferences = open();
  long length = 0;
  bind(preferences.get(), &length, 15, "length");
  writeSetting(file(), "length", 40L);
  HBPreferences::domainDidChangeElsewhere(domain);
  EXPECT_EQ(length, 15);
  advance(0);
  EXPECT_EQ(length, 40);
  changeElsewhere("length", NoValue());
  EXPECT_EQ(length, 15);
}

TEST_F(PreferencesBindings, EveryRegistrationRewritesAll) {
  boot();
  const auto preferences = open();
  long length = 0;
  bool enabled = false;
  bind(preferences.get(), &length, 15, "length");
  length = 99;
  bind(preferences.get(), &enabled, true, "enabled");
  EXPECT_EQ(length, 15);
}

TEST_F(PreferencesBindings, AKeyHasOneAddress) {
  boot();
  const auto preferences = open();
  long first = 0;
  long second = 0;
  bind(preferences.get(), &first, 15, "length");
  bind(preferences.get(), &second, 15, "length");
  objc::send<void, "setInteger:forKey:">(preferences.get(), 3L, string("length"));
  EXPECT_EQ(first, 15);
  EXPECT_EQ(second, 3);
}

// The slot owns what it holds: what it held before is released, what it holds is kept.
TEST_F(PreferencesBindings, ObjectsAreStoredStrongly) {
  boot();
  const auto preferences = open();
  struct Probe : objc::Implementation<Probe> {};
  objc::ClassBuilder<Probe>("TestProbe", "NSObject").finish();
  auto before = Probe::make();
  const objc::Weak<objc::Object> watched = objc::weak(before.get());
  id slot = before.detach().get();
  {
    const objc::AutoreleasePool pool;
    objc::send<void, "registerObject:default:forKey:">(preferences.get(), &slot, nullptr,
                                                       string("name"));
    EXPECT_EQ(slot, nullptr);
    EXPECT_FALSE(watched.load());
    objc::send<void, "setObject:forKey:">(preferences.get(), string("a name that is no constant"),
                                          string("name"));
  }
  changeElsewhere("other", 1L);
  EXPECT_EQ(text(objc::Object(slot)), "a name that is no constant");
}

}  // namespace
}  // namespace sim
