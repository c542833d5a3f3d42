// Autoreleased references and the scopes that end them.
#include "objc/Ownership.h"
#include "tests/bridge/Probe.h"

namespace {

using bridge::Owner;
using bridge::Probe;
using bridge::ProbeView;

struct AutoreleasePools : bridge::ProbeTest {};

TEST_F(AutoreleasePools, KeepWhatIsAutoreleasedUntilTheirEnd) {
  {
    objc::AutoreleasePool pool;
    ProbeView view = objc::autorelease(make());
    EXPECT_EQ(Probe::autoreleases, 1);
    EXPECT_EQ(Probe::releases, 0);
    EXPECT_EQ(view.retainCount(), 1u);
  }
  EXPECT_EQ(Probe::releases, 1);
  EXPECT_EQ(Probe::deallocations, 1);
}

TEST_F(AutoreleasePools, Nest) {
  objc::AutoreleasePool outer;
  ProbeView outside = objc::autorelease(make());
  {
    objc::AutoreleasePool inner;
    objc::autorelease(make());
    EXPECT_EQ(Probe::deallocations, 0);
  }
  EXPECT_EQ(Probe::deallocations, 1);
  EXPECT_EQ(outside.retainCount(), 1u);
}

TEST_F(AutoreleasePools, TakeTheReferenceGivenAndNoMore) {
  Owner owner = make();
  {
    objc::AutoreleasePool pool;
    objc::autorelease(Owner(owner));
    EXPECT_EQ(owner->retainCount(), 2u);
  }
  EXPECT_EQ(owner->retainCount(), 1u);
}

TEST_F(AutoreleasePools, ReleaseAsOftenAsAutoreleased) {
  Owner owner = make();
  {
    objc::AutoreleasePool pool;
    for (int i = 0; i < 1000; ++i) objc::autorelease(Owner(owner));
    EXPECT_EQ(owner->retainCount(), 1001u);
  }
  EXPECT_EQ(owner->retainCount(), 1u);
}

TEST_F(AutoreleasePools, HoldWhatADeallocAutoreleases) {
  Probe::onDealloc = [](ProbeView) {
    Probe::onDealloc = nullptr;
    objc::autorelease(make());
  };
  {
    objc::AutoreleasePool pool;
    objc::autorelease(make());
  }
  EXPECT_EQ(Probe::deallocations, 2);
}

}  // namespace
