// Sends on many threads while classes change under them.
#include <gtest/gtest.h>

#include <atomic>
#include <string>
#include <thread>
#include <vector>

#include "TestClasses.h"

using namespace testing_runtime;

namespace {

constexpr int kThreads = 8;
constexpr int kRounds = 20000;

int one(id, SEL) {
  return 1;
}
int two(id, SEL) {
  return 2;
}

void join(std::vector<std::thread>& threads) {
  for (std::thread& thread : threads) {
    thread.join();
  }
}

TEST(Concurrency, sendsSeeTheOldOrTheNewImplementation) {
  Class base = makeClass("Base");
  addMethod(base, "number", &one);
  id object = make(makeClass("Derived", base));
  std::atomic<int> wrong = 0;
  std::vector<std::thread> threads;
  for (int i = 0; i < kThreads; ++i) {
    threads.emplace_back([&] {
      for (int round = 0; round < kRounds; ++round) {
        const int answer = send<int>(object, "number");
        wrong += answer != 1 && answer != 2;
      }
    });
  }
  threads.emplace_back([&] {
    for (int round = 0; round < 2000; ++round) {
      const IMP next = asImplementation(round % 2 == 0 ? &two : &one);
      class_replaceMethod(base, sel("number"), next, "i@:");
    }
    class_replaceMethod(base, sel("number"), asImplementation(&two), "i@:");
  });
  join(threads);
  EXPECT_EQ(wrong, 0);
  EXPECT_EQ(send<int>(object, "number"), 2);
  objc_release(object);
}

// A replacement that has returned is what every later send finds, on whichever thread.
TEST(Concurrency, noThreadSeesAnImplementationAfterItsReplacementWasAnnounced) {
  Class cls = makeClass("Announced");
  addMethod(cls, "number", &one);
  id object = make(cls);
  std::atomic<bool> replaced = false;
  std::atomic<int> stale = 0;
  std::vector<std::thread> threads;
  for (int i = 0; i < kThreads; ++i) {
    threads.emplace_back([&] {
      for (int round = 0; round < kRounds; ++round) {
        const bool mustBeNew = replaced.load();
        stale += mustBeNew && send<int>(object, "number") != 2;
      }
    });
  }
  send<int>(object, "number");
  class_replaceMethod(cls, sel("number"), asImplementation(&two), "i@:");
  replaced = true;
  join(threads);
  EXPECT_EQ(stale, 0);
  objc_release(object);
}

TEST(Concurrency, cachesGrowUnderOtherThreadsSends) {
  Class cls = makeClass("Growing");
  std::vector<std::string> names;
  for (int i = 0; i < 300; ++i) {
    names.push_back("growing" + std::to_string(i));
    addMethod(cls, names.back().c_str(), i % 2 == 0 ? &one : &two);
  }
  id object = make(cls);
  std::atomic<int> wrong = 0;
  std::vector<std::thread> threads;
  for (int i = 0; i < kThreads; ++i) {
    threads.emplace_back([&, i] {
      for (std::size_t round = 0; round < 3000; ++round) {
        const std::size_t which = (round * 7 + static_cast<std::size_t>(i)) % names.size();
        wrong += send<int>(object, names[which].c_str()) != static_cast<int>(which % 2) + 1;
      }
    });
  }
  join(threads);
  EXPECT_EQ(wrong, 0);
  objc_release(object);
}

TEST(Concurrency, classesAreMadeOnManyThreads) {
  std::vector<std::thread> threads;
  std::atomic<int> made = 0;
  for (int i = 0; i < kThreads; ++i) {
    threads.emplace_back([&made] {
      for (int round = 0; round < 50; ++round) {
        const std::string name = "Contended" + std::to_string(round);
        Class cls = objc_allocateClassPair(rootClass(), name.c_str(), 0);
        if (cls != nullptr) {
          objc_registerClassPair(cls);
          objc_release(make(cls));
          ++made;
        }
      }
    });
  }
  join(threads);
  EXPECT_EQ(made, 50);
  EXPECT_NE(objc_getClass("Contended49"), nullptr);
}

}  // namespace
