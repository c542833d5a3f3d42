// State attached to objects of the host.
#include "objc/Association.h"
#include "objc/Ownership.h"
#include "tests/bridge/Probe.h"

namespace {

using bridge::Owner;
using bridge::Probe;
using bridge::ProbeView;
using Attached = objc::Association<"attachedProbe", ProbeView>;
using Other = objc::Association<"otherProbe", ProbeView>;

struct Associations : bridge::ProbeTest {
  Owner host = make();
};

TEST_F(Associations, StartEmpty) {
  EXPECT_FALSE(Attached::get(host.get()));
}

TEST_F(Associations, KeepTheValue) {
  Owner value = make();
  ProbeView view = value;
  Attached::set(host.get(), view);
  EXPECT_EQ(view.retainCount(), 2u);
  value = nullptr;
  EXPECT_EQ(Probe::deallocations, 0);
  EXPECT_EQ(Attached::get(host.get()), view);
}

TEST_F(Associations, ReplacingReleasesTheOldValue) {
  Owner next = make();
  Attached::set(host.get(), make().get());
  Attached::set(host.get(), next.get());
  EXPECT_EQ(Probe::deallocations, 1);
  EXPECT_EQ(Attached::get(host.get()), next.get());
}

TEST_F(Associations, SettingTheSameValueKeepsIt) {
  Attached::set(host.get(), make().get());
  ProbeView view = Attached::get(host.get());
  Attached::set(host.get(), view);
  EXPECT_EQ(Probe::deallocations, 0);
  EXPECT_EQ(view.retainCount(), 1u);
}

TEST_F(Associations, NilRemoves) {
  Attached::set(host.get(), make().get());
  Attached::set(host.get(), nullptr);
  EXPECT_EQ(Probe::deallocations, 1);
  EXPECT_FALSE(Attached::get(host.get()));
}

TEST_F(Associations, EndWithTheirOwner) {
  Attached::set(host.get(), make().get());
  Other::set(host.get(), make().get());
  host = nullptr;
  EXPECT_EQ(Probe::deallocations, 3);
}

TEST_F(Associations, AreKeptApartByName) {
  Owner one = make();
  Owner two = make();
  Attached::set(host.get(), one.get());
  Other::set(host.get(), two.get());
  EXPECT_EQ(Attached::get(host.get()), one.get());
  Attached::set(host.get(), nullptr);
  EXPECT_EQ(Other::get(host.get()), two.get());
}

TEST_F(Associations, AreKeptApartByOwner) {
  Owner second = make();
  Attached::set(host.get(), make().get());
  EXPECT_FALSE(Attached::get(second.get()));
}

TEST_F(Associations, AreFoundUnderTheSelectorOfTheirGetter) {
  Owner value = make();
  Attached::set(host.get(), value.get());
  EXPECT_EQ(objc_getAssociatedObject(host.get().get(), sel_registerName("attachedProbe")),
            value.get().get());
}

TEST_F(Associations, OfNilAreNil) {
  Attached::set(nullptr, nullptr);
  EXPECT_FALSE(Attached::get(nullptr));
}

using AssociationsDeathTest = Associations;

TEST_F(AssociationsDeathTest, NilCanHaveNone) {
  Owner value = make();
  EXPECT_DEATH(Attached::set(nullptr, value.get()), "the object is nil");
}

}  // namespace
