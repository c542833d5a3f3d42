// imp_implementationWithBlock: blocks as methods.
#include <gtest/gtest.h>

#include <cstdint>
#include <thread>
#include <vector>

#include "TestClasses.h"
#include "simulator/runtime/LiveObjects.h"

using namespace testing_runtime;
using sim::runtime::liveBlockCount;

namespace {

struct Descriptor {
  std::uintptr_t reserved;
  std::uintptr_t size;
  const char* signature;
};
struct Block {
  void* isa;
  std::int32_t flags;
  std::int32_t reserved;
  void (*invoke)();
  const Descriptor* descriptor;
  int captured;
};
constexpr std::int32_t kUseStret = 1 << 29;
constexpr std::int32_t kHasSignature = 1 << 30;
const Descriptor descriptor{0, sizeof(Block), ""};

template <typename Function>
Block stackBlock(Function* invoke, int captured, std::int32_t flags = 0) {
  return {_NSConcreteStackBlock, flags, 0, asImplementation(invoke), &descriptor, captured};
}
IMP implementation(Block block) {
  return imp_implementationWithBlock(reinterpret_cast<id>(&block));
}

id seenSelf;
double sum(Block* block, id self, int a, int b, int c, int d, int e, double x, double y) {
  seenSelf = self;
  return block->captured + a + 10 * b + 100 * c + 1000 * d + 10000 * e + x + y;
}
int captured(Block* block, id) {
  return block->captured;
}
struct Large {
  double numbers[6];
};
Large large(Block* block, id self, double first) {
  seenSelf = self;
  return {{first, 2, 3, 4, 5, static_cast<double>(block->captured)}};
}

class BlockImplementations : public testing::Test {
 protected:
  void TearDown() override {
    objc_release(object_);
    EXPECT_EQ(liveBlockCount(), 0u);
  }

  Class cls_ = makeClass("Blocky");
  id object_ = make(cls_);
};

TEST_F(BlockImplementations, getTheReceiverAndTheArgumentsWithoutTheSelector) {
  const IMP method = implementation(stackBlock(&sum, 100000));
  EXPECT_TRUE(class_addMethod(cls_, sel("sum"), method, "d@:iiiiidd"));
  EXPECT_EQ((send<double>(object_, "sum", 1, 2, 3, 4, 5, 0.25, 0.5)), 154321.75);
  EXPECT_EQ(seenSelf, object_);
  class_replaceMethod(cls_, sel("sum"), asImplementation(&captured), "d@:");
  EXPECT_TRUE(imp_removeBlock(method));
}

TEST_F(BlockImplementations, mayReturnAStructureInMemory) {
  const IMP method = implementation(stackBlock(&large, 7, kUseStret | kHasSignature));
  const Large result =
      reinterpret_cast<Large (*)(id, SEL, double)>(method)(object_, sel("large"), 1.5);
  EXPECT_EQ(result.numbers[0], 1.5);
  EXPECT_EQ(result.numbers[5], 7);
  EXPECT_EQ(seenSelf, object_);
  EXPECT_TRUE(imp_removeBlock(method));
}

TEST_F(BlockImplementations, keepTheBlockUntilTheyAreRemoved) {
  const IMP method = implementation(stackBlock(&captured, 7));
  EXPECT_EQ(liveBlockCount(), 1u);
  id block = imp_getBlock(method);
  ASSERT_NE(block, nullptr);
  EXPECT_EQ(reinterpret_cast<Block*>(block)->captured, 7);
  EXPECT_TRUE(imp_removeBlock(method));
  EXPECT_EQ(liveBlockCount(), 0u);
  EXPECT_EQ(imp_getBlock(method), nullptr);
  EXPECT_FALSE(imp_removeBlock(method));
}

TEST_F(BlockImplementations, otherFunctionsHaveNoBlock) {
  EXPECT_EQ(imp_getBlock(asImplementation(&captured)), nullptr);
  EXPECT_FALSE(imp_removeBlock(asImplementation(&captured)));
  EXPECT_EQ(imp_getBlock(nullptr), nullptr);
  EXPECT_FALSE(imp_removeBlock(nullptr));
  EXPECT_EQ(imp_implementationWithBlock(nullptr), nullptr);
}

TEST_F(BlockImplementations, areAsManyAsOneLikes) {
  std::vector<IMP> methods;
  for (int i = 0; i < 5000; ++i) methods.push_back(implementation(stackBlock(&captured, i)));
  for (int i = 0; i < 5000; ++i) {
    const auto method = reinterpret_cast<int (*)(id, SEL)>(methods[static_cast<std::size_t>(i)]);
    ASSERT_EQ(method(object_, sel("captured")), i);
  }
  for (const IMP method : methods) EXPECT_TRUE(imp_removeBlock(method));
}

TEST_F(BlockImplementations, areMadeOnManyThreads) {
  std::vector<std::thread> threads;
  for (int i = 0; i < 4; ++i) {
    threads.emplace_back([this, i] {
      for (int round = 0; round < 1000; ++round) {
        const int number = i * 1000 + round;
        const IMP method = implementation(stackBlock(&captured, number));
        EXPECT_EQ(reinterpret_cast<int (*)(id, SEL)>(method)(object_, sel("captured")), number);
        EXPECT_TRUE(imp_removeBlock(method));
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
}

}  // namespace
