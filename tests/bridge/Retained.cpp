// Blocks made for an object's own member keep the object.
#include <utility>

#include "objc/Block.h"
#include "objc/Class.h"
#include "tests/bridge/Probe.h"

namespace {

using bridge::Owner;
using bridge::Probe;
using objc::Block;
using objc::Strong;

struct Page : objc::Implementation<Page> {
  long shown;
  Owner label;

  auto showLater() {
    return objc::block<long()>([page = retained()] { return ++page->shown; });
  }

  static Class registerClass() { return objc::ClassBuilder<Page>("Page", "NSObject").finish(); }
};

struct RetainedPages : bridge::ProbeTest {
  static void SetUpTestSuite() {
    ProbeTest::SetUpTestSuite();
    ASSERT_TRUE(Page::registerClass());
  }
  RetainedPages() { Page::of(page).label = make(); }
  Page& state() { return Page::of(page); }

  Strong<objc::Object> page = Page::make();
};

TEST_F(RetainedPages, LiveAsLongAsTheirBlock) {
  auto later = state().showLater();
  page = nullptr;
  EXPECT_EQ(Probe::deallocations, 0);
  EXPECT_EQ(later.get()(), 1);
  EXPECT_EQ(later.get()(), 2);
  later = nullptr;
  EXPECT_EQ(Probe::deallocations, 1);
}

TEST_F(RetainedPages, AreReachedByReference) {
  auto kept = state().retained();
  EXPECT_EQ(&*kept, &state());
  EXPECT_EQ(kept->self(), page.get().get());
}

TEST_F(RetainedPages, MoveIntoTheBlock) {
  auto kept = state().retained();
  auto later = objc::block<long()>([kept = std::move(kept)] { return kept->shown; });
  page = nullptr;
  EXPECT_EQ(Probe::deallocations, 0);
  later = nullptr;
  EXPECT_EQ(Probe::deallocations, 1);
}

}  // namespace
