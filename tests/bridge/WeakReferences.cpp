// Weak: zeroing references.
#include <cstring>
#include <optional>
#include <type_traits>
#include <utility>
#include <vector>

#include "objc/Ownership.h"
#include "tests/bridge/Probe.h"

namespace {

using bridge::Owner;
using bridge::Probe;
using bridge::ProbeView;
using Weak = objc::Weak<ProbeView>;

static_assert(!std::is_convertible_v<ProbeView, Weak>, "weak() says so at the call site");

static_assert(sizeof(Weak) == sizeof(id));

struct WeakReferences : bridge::ProbeTest {
  // Loading may find out on its own that the object is gone; the runtime must have cleared it too.
  static bool isCleared(const Weak& reference) {
    return *reinterpret_cast<const id*>(&reference) == nullptr;
  }
};

TEST_F(WeakReferences, DoNotKeepTheObject) {
  Owner owner = make();
  Weak reference = objc::weak(owner.get());
  EXPECT_EQ(owner->retainCount(), 1u);
  owner = nullptr;
  EXPECT_EQ(Probe::deallocations, 1);
  EXPECT_FALSE(reference.load());
}

TEST_F(WeakReferences, LoadKeepsTheObject) {
  Owner owner = make();
  Weak reference = objc::weak(owner.get());
  Owner loaded = reference.load();
  EXPECT_EQ(loaded.get(), owner.get());
  EXPECT_EQ(owner->retainCount(), 2u);
  owner = nullptr;
  EXPECT_EQ(Probe::deallocations, 0);
  loaded = nullptr;
  EXPECT_EQ(Probe::deallocations, 1);
}

TEST_F(WeakReferences, AreEmptyWhileTheObjectIsDestroyed) {
  Owner owner = make();
  Weak reference = objc::weak(owner.get());
  std::optional<bool> empty;
  Probe::onDealloc = [&](ProbeView) { empty = !reference.load(); };
  owner = nullptr;
  EXPECT_EQ(empty, true);
}

TEST_F(WeakReferences, ManyAreClearedAtOnce) {
  Owner owner = make();
  std::vector<Weak> references(40, objc::weak(owner.get()));
  owner = nullptr;
  for (const Weak& reference : references) EXPECT_TRUE(isCleared(reference));
}

TEST_F(WeakReferences, CopiesAreReferencesOfTheirOwn) {
  Owner owner = make();
  std::optional<Weak> first = objc::weak(owner.get());
  Weak second = *first;
  first.reset();
  EXPECT_EQ(second.load().get(), owner.get());
  owner = nullptr;
  EXPECT_TRUE(isCleared(second));
}

TEST_F(WeakReferences, MovesLeaveNothingBehind) {
  Owner owner = make();
  std::optional<Weak> first = objc::weak(owner.get());
  Weak second = std::move(*first);
  EXPECT_FALSE(first->load());
  first.reset();
  EXPECT_EQ(second.load().get(), owner.get());
  owner = nullptr;
  EXPECT_TRUE(isCleared(second));
}

TEST_F(WeakReferences, AssignmentReplaces) {
  Owner one = make();
  Owner other = make();
  Weak reference = objc::weak(one.get());
  reference = objc::weak(other.get());
  one = nullptr;
  EXPECT_EQ(reference.load().get(), other.get());
  reference = Weak();
  EXPECT_FALSE(reference.load());
}

TEST_F(WeakReferences, SelfAssignmentChangesNothing) {
  Owner owner = make();
  Weak reference = objc::weak(owner.get());
  const Weak& same = reference;
  reference = same;
  EXPECT_EQ(reference.load().get(), owner.get());
  EXPECT_EQ(owner->retainCount(), 1u);
}

TEST_F(WeakReferences, MayEndBeforeTheObject) {
  Owner owner = make();
  alignas(Weak) unsigned char bytes[sizeof(Weak)];
  auto* reference = new (bytes) Weak(owner.get());
  reference->~Weak();
  std::memset(bytes, 0x11, sizeof bytes);
  owner = nullptr;
  // An unregistered location is nobody's to clear.
  for (unsigned char byte : bytes) EXPECT_EQ(byte, 0x11);
}

TEST_F(WeakReferences, OfNilAreEmpty) {
  Weak reference = objc::weak(ProbeView());
  EXPECT_FALSE(reference.load());
  Weak copy = reference;
  EXPECT_FALSE(copy.load());
}

TEST_F(WeakReferences, AreEmptyWhenAllBytesAreZero) {
  alignas(Weak) unsigned char bytes[sizeof(Weak)];
  std::memset(bytes, 0, sizeof bytes);
  Weak& reference = *reinterpret_cast<Weak*>(bytes);
  EXPECT_FALSE(reference.load());
  Owner owner = make();
  reference = objc::weak(owner.get());
  EXPECT_TRUE(reference.load());
  reference.~Weak();
}

}  // namespace
