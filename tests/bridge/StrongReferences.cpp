// Strong: who retains, who releases, and when.
#include <cstring>
#include <type_traits>

#include "objc/Ownership.h"
#include "tests/bridge/Probe.h"

namespace {

using bridge::Owner;
using bridge::Probe;
using bridge::ProbeView;

static_assert(!std::is_convertible_v<id, Owner>, "a raw object never turns into an owner");
static_assert(!std::is_convertible_v<ProbeView, Owner>, "nor does a view");
static_assert(!std::is_constructible_v<Owner, ProbeView>, "retain() or adopt() says which");
static_assert(std::is_convertible_v<Owner&, ProbeView>);
static_assert(std::is_convertible_v<const Owner&, objc::Object>);
static_assert(!std::is_convertible_v<Owner, ProbeView>, "it would dangle");
static_assert(!std::is_convertible_v<const Owner, objc::Object>);
static_assert(sizeof(Owner) == sizeof(id));

struct StrongReferences : bridge::ProbeTest {
  void expectCounts(int retains, int releases) {
    EXPECT_EQ(Probe::retains, retains);
    EXPECT_EQ(Probe::releases, releases);
  }
};

TEST_F(StrongReferences, AdoptTakesOverTheReference) {
  {
    Owner owner = objc::adopt(ProbeView(objc_alloc_init(Probe::cls())));
    expectCounts(0, 0);
    EXPECT_EQ(owner->retainCount(), 1u);
  }
  expectCounts(0, 1);
  EXPECT_EQ(Probe::deallocations, 1);
}

TEST_F(StrongReferences, MakeGivesAnObjectOfItsOwn) {
  Owner owner = make();
  EXPECT_EQ(Probe::allocations, 1);
  EXPECT_EQ(owner->retainCount(), 1u);
  EXPECT_EQ(object_getClass(owner.get().get()), Probe::cls());
}

TEST_F(StrongReferences, RetainShares) {
  Owner first = make();
  {
    Owner second = objc::retain(first.get());
    expectCounts(1, 0);
    EXPECT_EQ(second.get(), first.get());
  }
  expectCounts(1, 1);
  EXPECT_EQ(Probe::deallocations, 0);
}

TEST_F(StrongReferences, CopiesShare) {
  Owner first = make();
  Owner second = first;
  expectCounts(1, 0);
  first = nullptr;
  expectCounts(1, 1);
  EXPECT_EQ(second->retainCount(), 1u);
}

TEST_F(StrongReferences, MovesHandOver) {
  Owner first = make();
  ProbeView view = first;
  Owner second = std::move(first);
  expectCounts(0, 0);
  EXPECT_FALSE(first);
  EXPECT_EQ(second.get(), view);

  Owner third;
  third = std::move(second);
  expectCounts(0, 0);
  EXPECT_EQ(third.get(), view);
}

TEST_F(StrongReferences, AssignmentReplaces) {
  Owner kept = make();
  Owner other = make();
  ProbeView view = other;
  kept = other;
  EXPECT_EQ(Probe::deallocations, 1);
  EXPECT_EQ(kept.get(), view);
  EXPECT_EQ(other->retainCount(), 2u);
}

TEST_F(StrongReferences, SelfAssignmentKeepsTheObject) {
  Owner owner = make();
  ProbeView view = owner;
  Owner& same = owner;
  owner = same;
  EXPECT_EQ(owner.get(), view);
  owner = std::move(same);
  EXPECT_EQ(owner.get(), view);
  EXPECT_EQ(owner->retainCount(), 1u);
  EXPECT_EQ(Probe::deallocations, 0);
}

TEST_F(StrongReferences, TheOldObjectGoesLast) {
  Owner owner = make();
  Owner next = make();
  ProbeView newcomer = next;
  ProbeView seen;
  // Whoever looks from inside the old object's dealloc finds its successor.
  Probe::onDealloc = [&](ProbeView) { seen = owner.get(); };
  owner = std::move(next);
  EXPECT_EQ(Probe::deallocations, 1);
  EXPECT_EQ(seen, newcomer);
  Probe::onDealloc = nullptr;
}

TEST_F(StrongReferences, ClearingShowsNilWhileTheObjectGoes) {
  Owner owner = make();
  bool empty = false;
  Probe::onDealloc = [&](ProbeView) { empty = !owner; };
  owner = nullptr;
  EXPECT_TRUE(empty);
}

TEST_F(StrongReferences, DetachGivesAway) {
  Owner owner = make();
  ProbeView view = owner.detach();
  EXPECT_FALSE(owner);
  owner = nullptr;
  expectCounts(0, 0);
  EXPECT_EQ(view.retainCount(), 1u);
  objc_release(view.get());
  EXPECT_EQ(Probe::deallocations, 1);
}

TEST_F(StrongReferences, OfNilAreEmptyAndHarmless) {
  Owner empty;
  Owner fromNil = nullptr;
  Owner retained = objc::retain(ProbeView());
  Owner adopted = objc::adopt(ProbeView());
  Owner copied = empty;
  EXPECT_FALSE(empty || fromNil || retained || adopted || copied);
  EXPECT_EQ(empty->retainCount(), 0u);
  EXPECT_FALSE(empty.detach());
  EXPECT_FALSE(objc::autorelease(std::move(empty)));
  expectCounts(0, 0);
}

TEST_F(StrongReferences, AreEmptyWhenAllBytesAreZero) {
  alignas(Owner) unsigned char bytes[sizeof(Owner)];
  std::memset(bytes, 0, sizeof bytes);
  Owner& owner = *reinterpret_cast<Owner*>(bytes);
  EXPECT_FALSE(owner);
  owner = make();
  EXPECT_TRUE(owner);
  owner.~Owner();
  EXPECT_EQ(Probe::deallocations, 1);
}

TEST_F(StrongReferences, SlotIsWhereTheReferenceIs) {
  Owner owner;
  *owner.slot() = objc_alloc_init(Probe::cls());
  EXPECT_EQ(owner->retainCount(), 1u);
  owner = nullptr;
  EXPECT_EQ(Probe::deallocations, 1);
}

}  // namespace
