// What blocks own, and until when.
#include <memory>
#include <utility>

#include "objc/Block.h"
#include "tests/bridge/Probe.h"

namespace {

using bridge::Owner;
using bridge::Probe;
using bridge::ProbeView;
using objc::Block;
using objc::Strong;

struct BlockCaptures : bridge::ProbeTest {};

TEST_F(BlockCaptures, NoneNeedsNoHelpers) {
  auto plain = objc::block<void()>([] {});
  auto* header = reinterpret_cast<objc::BlockHeader*>(plain.get().get());
  EXPECT_FALSE(header->flags & objc::blockHasCopyDispose);
  plain.get()();
}

TEST_F(BlockCaptures, TrivialOnesNeedNoHelpers) {
  long number = 7;
  double fraction = 0.25;
  auto sum = objc::block<double()>([=] { return double(number) + fraction; });
  auto* header = reinterpret_cast<objc::BlockHeader*>(sum.get().get());
  EXPECT_FALSE(header->flags & objc::blockHasCopyDispose);
  number = 0, fraction = 0;
  EXPECT_EQ(sum.get()(), 7.25);
}

TEST_F(BlockCaptures, OwnersAreMovedInAndReleasedAtTheEnd) {
  Owner owner = make();
  ProbeView view = owner;
  {
    auto block = objc::block<ProbeView()>([owner = std::move(owner)] { return owner.get(); });
    EXPECT_EQ(Probe::retains, 0);
    EXPECT_EQ(block.get()(), view);
    EXPECT_EQ(Probe::deallocations, 0);
  }
  EXPECT_EQ(Probe::releases, 1);
  EXPECT_EQ(Probe::deallocations, 1);
}

TEST_F(BlockCaptures, OutliveTheOriginalOwner) {
  Strong<Block<unsigned long()>> block;
  {
    Owner owner = make();
    block = objc::block<unsigned long()>([owner] { return owner->retainCount(); });
    EXPECT_EQ(block.get()(), 2u);
  }
  EXPECT_EQ(block.get()(), 1u);
  block = nullptr;
  EXPECT_EQ(Probe::deallocations, 1);
}

TEST_F(BlockCaptures, MayBeMoveOnly) {
  auto number = std::make_unique<long>(42);
  Strong<Block<long()>> block =
      objc::block<long()>([number = std::move(number)] { return *number; });
  EXPECT_EQ(block.get()(), 42);
}

TEST_F(BlockCaptures, StayUntilTheLastCopyIsReleased) {
  void* copy = nullptr;
  {
    auto block = objc::block<ProbeView()>([owner = make()] { return owner.get(); });
    copy = _Block_copy(block.get().get());
    EXPECT_EQ(copy, block.get().get());
  }
  EXPECT_EQ(Probe::retains, 0);
  EXPECT_EQ(Probe::deallocations, 0);
  EXPECT_EQ(Block<ProbeView()>(static_cast<id>(copy))().retainCount(), 1u);
  _Block_release(copy);
  EXPECT_EQ(Probe::deallocations, 1);
}

TEST_F(BlockCaptures, AreKeptByRetainAndByCopyMessages) {
  Strong<Block<ProbeView()>> kept;
  {
    auto block = objc::block<ProbeView()>([owner = make()] { return owner.get(); });
    kept = objc::adopt(objc::send<Block<ProbeView()>, "copy">(block));
    Strong<Block<ProbeView()>> again = objc::retain(block.get());
  }
  EXPECT_EQ(Probe::deallocations, 0);
  EXPECT_TRUE(kept.get()());
  kept = nullptr;
  EXPECT_EQ(Probe::deallocations, 1);
}

TEST_F(BlockCaptures, OfMoveOnlyTypeSurviveCopies) {
  void* copy = nullptr;
  {
    auto block = objc::block<long()>([number = std::make_unique<long>(42)] { return *number; });
    copy = _Block_copy(block.get().get());
  }
  EXPECT_EQ(Block<long()>(static_cast<id>(copy))(), 42);
  _Block_release(copy);
}

TEST_F(BlockCaptures, OfTrivialTypeSurviveCopies) {
  void* copy = nullptr;
  {
    auto block = objc::block<long()>([number = 42L] { return number; });
    copy = _Block_copy(block.get().get());
  }
  EXPECT_EQ(Block<long()>(static_cast<id>(copy))(), 42);
  _Block_release(copy);
}

TEST_F(BlockCaptures, MayBeWeak) {
  Owner owner = make();
  auto alive =
      objc::block<bool()>([reference = objc::weak(owner.get())] { return bool(reference.load()); });
  EXPECT_TRUE(alive.get()());
  EXPECT_EQ(owner->retainCount(), 1u);
  owner = nullptr;
  EXPECT_FALSE(alive.get()());
}

TEST_F(BlockCaptures, MayBeBlocks) {
  auto inner = objc::block<long()>([owner = make()] { return long(owner->retainCount()); });
  auto outer = objc::block<long()>([inner] { return inner.get()() + 1; });
  inner = nullptr;
  EXPECT_EQ(outer.get()(), 2);
  outer = nullptr;
  EXPECT_EQ(Probe::deallocations, 1);
}

TEST_F(BlockCaptures, GoWithAnAutoreleasedBlock) {
  {
    objc::AutoreleasePool pool;
    auto view = objc::autorelease(objc::block<ProbeView()>([o = make()] { return o.get(); }));
    EXPECT_TRUE(view());
  }
  EXPECT_EQ(Probe::deallocations, 1);
}

TEST_F(BlockCaptures, MayBeStoredInAnObject) {
  Owner host = make();
  objc_setAssociatedObject(host.get().get(), "handler",
                           objc::block<ProbeView()>([o = make()] { return o.get(); }).get().get(),
                           OBJC_ASSOCIATION_COPY_NONATOMIC);
  Block<ProbeView()> handler(objc_getAssociatedObject(host.get().get(), "handler"));
  EXPECT_TRUE(handler());
  host = nullptr;
  EXPECT_EQ(Probe::deallocations, 2);
}

}  // namespace
