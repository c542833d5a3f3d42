#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <thread>
#include <vector>

#include "TestClasses.h"
#include "simulator/runtime/LiveObjects.h"

using namespace testing_runtime;
using sim::runtime::liveBlockCount;

namespace {

// The public layout of a block, written down a second time on purpose: the runtime must follow the
// binary interface, not its own header.
struct Descriptor {
  std::uintptr_t reserved;
  std::uintptr_t size;
  void (*copy)(void* to, const void* from);
  void (*dispose)(const void* block);
};
struct Block {
  void* isa;
  std::int32_t flags;
  std::int32_t reserved;
  int (*invoke)(Block*);
  const Descriptor* descriptor;
  int captured;
};
constexpr std::int32_t kCopyDispose = 1 << 25;
constexpr std::int32_t kGlobal = 1 << 28;
constexpr std::int32_t kNeedsFree = 1 << 24;

int copies;
int disposals;
void copyHelper(void* to, const void* from) {
  ++copies;
  static_cast<Block*>(to)->captured = static_cast<const Block*>(from)->captured + 1000;
}
void disposeHelper(const void*) {
  ++disposals;
}
int invoke(Block* block) {
  return block->captured;
}

const Descriptor descriptor{0, sizeof(Block), &copyHelper, &disposeHelper};

Block stackBlock(int captured) {
  return {_NSConcreteStackBlock, 0, 0, &invoke, &descriptor, captured};
}
id asObject(Block& block) {
  return reinterpret_cast<id>(&block);
}

// The first contact with the runtime in this program: blocks need no call to come into being.
const char* const nameSeenByStaticInitializer =
    class_getName(reinterpret_cast<Class>(_NSConcreteGlobalBlock));

class Blocks : public testing::Test {
 protected:
  void SetUp() override { copies = disposals = 0; }
  void TearDown() override { EXPECT_EQ(liveBlockCount(), 0u); }
};

TEST_F(Blocks, classesAreRealAndInherit) {
  EXPECT_EQ(reinterpret_cast<Class>(_NSConcreteStackBlock), objc_getClass("__NSStackBlock__"));
  EXPECT_EQ(reinterpret_cast<Class>(_NSConcreteGlobalBlock), objc_getClass("__NSGlobalBlock__"));
  EXPECT_EQ(reinterpret_cast<Class>(_NSConcreteMallocBlock), objc_getClass("__NSMallocBlock__"));
  Block block = stackBlock(1);
  EXPECT_TRUE((send<bool>(asObject(block), "isKindOfClass:", objc_getClass("NSBlock"))));
  EXPECT_EQ(class_getSuperclass(objc_getClass("NSBlock")), rootClass());
  EXPECT_EQ(class_createInstance(objc_getClass("NSBlock"), 0), nullptr);
}

TEST_F(Blocks, classesAreThereForStaticInitializers) {
  EXPECT_STREQ(nameSeenByStaticInitializer, "__NSGlobalBlock__");
}

TEST_F(Blocks, copyMovesToTheHeap) {
  Block block = stackBlock(7);
  auto* copy = static_cast<Block*>(_Block_copy(&block));
  ASSERT_NE(copy, &block);
  EXPECT_EQ(copy->isa, _NSConcreteMallocBlock);
  EXPECT_EQ(copy->flags, kNeedsFree | 2);
  EXPECT_EQ(copy->invoke(copy), 7);
  EXPECT_EQ(liveBlockCount(), 1u);
  _Block_release(copy);
}

TEST_F(Blocks, builtOnTheHeapByHandIsFreedAndNotCounted) {
  auto* block = static_cast<Block*>(std::malloc(sizeof(Block)));
  *block = stackBlock(7);
  block->isa = _NSConcreteMallocBlock;
  block->flags = kNeedsFree | 2;
  EXPECT_EQ(_Block_copy(block), block);
  EXPECT_EQ(liveBlockCount(), 0u);
  _Block_release(block);
  _Block_release(block);
}

TEST_F(Blocks, helpersRunAtTheCopyAndAtTheLastRelease) {
  Block block = stackBlock(7);
  block.flags = kCopyDispose;
  auto* copy = static_cast<Block*>(_Block_copy(&block));
  EXPECT_EQ(copies, 1);
  EXPECT_EQ(copy->captured, 1007);
  EXPECT_EQ(_Block_copy(copy), copy);
  EXPECT_EQ(copies, 1);
  _Block_release(copy);
  EXPECT_EQ(disposals, 0);
  _Block_release(copy);
  EXPECT_EQ(disposals, 1);
}

TEST_F(Blocks, messagesAndFunctionsCountTheSame) {
  Block block = stackBlock(7);
  id copy = send<id>(asObject(block), "copy");
  EXPECT_EQ(send<id>(copy, "retain"), copy);
  EXPECT_EQ(objc_retain(copy), copy);
  EXPECT_EQ((send<id>(copy, "copyWithZone:", static_cast<void*>(nullptr))), copy);
  EXPECT_EQ(send<std::size_t>(copy, "retainCount"), 4u);
  void* pool = objc_autoreleasePoolPush();
  objc_autorelease(copy);
  objc_autoreleasePoolPop(pool);
  send(copy, "release");
  objc_release(copy);
  EXPECT_EQ(send<std::size_t>(copy, "retainCount"), 1u);
  objc_release(copy);
}

TEST_F(Blocks, globalOnesAreNeitherCopiedNorFreed) {
  Block block = stackBlock(7);
  block.isa = _NSConcreteGlobalBlock;
  block.flags = kGlobal | kCopyDispose;
  EXPECT_EQ(_Block_copy(&block), &block);
  EXPECT_EQ(objc_retain(asObject(block)), asObject(block));
  _Block_release(&block);
  objc_release(asObject(block));
  EXPECT_EQ(block.flags, kGlobal | kCopyDispose);
  EXPECT_EQ(disposals, 0);
}

TEST_F(Blocks, releasingAStackBlockDoesNothing) {
  Block block = stackBlock(7);
  block.flags = kCopyDispose;
  _Block_release(&block);
  EXPECT_EQ(disposals, 0);
}

TEST_F(Blocks, nilIsFine) {
  EXPECT_EQ(_Block_copy(nullptr), nullptr);
  _Block_release(nullptr);
}

TEST_F(Blocks, mayBeReferredToWeakly) {
  Block block = stackBlock(7);
  auto* copy = static_cast<id>(_Block_copy(&block));
  id weak = nullptr;
  objc_initWeak(&weak, copy);
  EXPECT_EQ(objc_loadWeakRetained(&weak), copy);
  _Block_release(copy);
  _Block_release(copy);
  EXPECT_EQ(weak, nullptr);
}

TEST_F(Blocks, mayHaveAssociations) {
  static const char key = 0;
  Block block = stackBlock(7);
  auto* copy = static_cast<id>(_Block_copy(&block));
  id value = make(rootClass());
  objc_setAssociatedObject(copy, &key, value, OBJC_ASSOCIATION_RETAIN_NONATOMIC);
  EXPECT_EQ(objc_getAssociatedObject(copy, &key), value);
  _Block_release(copy);
  EXPECT_EQ(send<std::size_t>(value, "retainCount"), 1u);
  objc_release(value);
}

TEST_F(Blocks, builtOnTheHeapByHandLoseTheirTracesToo) {
  static const char key = 0;
  auto* block = static_cast<Block*>(std::malloc(sizeof(Block)));
  *block = stackBlock(7);
  block->isa = _NSConcreteMallocBlock;
  block->flags = kNeedsFree | 2;
  id value = make(rootClass());
  id weak = nullptr;
  objc_initWeak(&weak, asObject(*block));
  objc_setAssociatedObject(asObject(*block), &key, value, OBJC_ASSOCIATION_RETAIN_NONATOMIC);
  _Block_release(block);
  EXPECT_EQ(weak, nullptr);
  EXPECT_EQ(send<std::size_t>(value, "retainCount"), 1u);
  objc_release(value);
}

// What is known of a block on a stack is known of that one, not of its copy.
TEST_F(Blocks, copiesInheritNoTraces) {
  static const char key = 0;
  Block block = stackBlock(7);
  objc_setAssociatedObject(asObject(block), &key, asObject(block), OBJC_ASSOCIATION_ASSIGN);
  EXPECT_EQ(block.reserved, 0);
  block.reserved = 3;
  auto* copy = static_cast<id>(_Block_copy(&block));
  EXPECT_EQ(reinterpret_cast<Block*>(copy)->reserved & 3, 0);
  EXPECT_EQ(objc_getAssociatedObject(copy, &key), nullptr);
  _Block_release(copy);
  objc_removeAssociatedObjects(asObject(block));
}

TEST_F(Blocks, threadsLoseNoReference) {
  Block block = stackBlock(7);
  block.flags = kCopyDispose;
  void* copy = _Block_copy(&block);
  std::vector<std::thread> threads;
  for (int i = 0; i < 4; ++i) {
    threads.emplace_back([copy] {
      for (int round = 0; round < 5000; ++round) {
        _Block_release(_Block_copy(copy));
      }
    });
  }
  for (std::thread& thread : threads) {
    thread.join();
  }
  EXPECT_EQ(disposals, 0);
  _Block_release(copy);
  EXPECT_EQ(disposals, 1);
}

using BlocksDeathTest = Blocks;

TEST_F(BlocksDeathTest, withoutAFunctionIsFatal) {
  Block block = stackBlock(7);
  block.invoke = nullptr;
  EXPECT_DEATH(_Block_copy(&block), "_Block_copy: block .* has no function");
}

}  // namespace
