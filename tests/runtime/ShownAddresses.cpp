#include "simulator/runtime/ShownAddresses.h"

#include <gtest/gtest.h>

#include <map>
#include <vector>

#include "TestClasses.h"

using namespace testing_runtime;
using namespace sim::runtime;

namespace {

const void* placeOf(id object) {
  return object;
}

TEST(ShownAddresses, areGivenOutInTheOrderOfShowing) {
  id first = make(rootClass());
  id second = make(rootClass());
  id third = make(rootClass());
  const std::size_t before = shownAddressCount();
  const std::uintptr_t ofThird = shownAddress(third);
  EXPECT_EQ(shownAddress(first), ofThird + 0x40);
  EXPECT_EQ(shownAddress(placeOf(second)), ofThird + 0x80);
  EXPECT_EQ(shownAddressCount(), before + 3);
  EXPECT_EQ(ofThird, 0x280000000 + 0x40 * (before + 1));
  for (id object : {first, second, third}) objc_release(object);
}

TEST(ShownAddresses, stayAsLongAsTheObject) {
  id object = make(rootClass());
  const std::uintptr_t address = shownAddress(object);
  EXPECT_EQ(shownAddress(object), address);
  EXPECT_EQ(shownAddress(placeOf(object)), address);
  EXPECT_EQ(send<std::size_t>(object, "hash"), address);
  objc_release(object);
}

// An address that was read from somewhere says nothing of what lies there now.
TEST(ShownAddresses, areNotHandedOnToTheNextInTheSamePlace) {
  std::vector<id> objects(64);
  for (id& each : objects) each = make(rootClass());
  std::map<const void*, std::uintptr_t> before;
  // Seen as plain pointers alone, as a format sees them.
  for (id each : objects) before[each] = shownAddress(placeOf(each));
  for (id each : objects) objc_release(each);
  for (const auto& [place, address] : before) EXPECT_EQ(lastShownAddress(place), address);
  int inTheSamePlace = 0;
  for (id& each : objects) {
    each = make(rootClass());
    const auto found = before.find(each);
    if (found == before.end()) continue;
    ++inTheSamePlace;
    EXPECT_NE(shownAddress(placeOf(each)), found->second);
  }
  for (id each : objects) objc_release(each);
  if (inTheSamePlace == 0) GTEST_SKIP() << "no memory is used again here, as with a sanitizer";
}

TEST(ShownAddresses, areThereForClassesAndFunctionsToo) {
  const std::uintptr_t ofClass = shownAddress(reinterpret_cast<id>(rootClass()));
  EXPECT_EQ(shownAddress(static_cast<const void*>(rootClass())), ofClass);
  const auto* function = reinterpret_cast<const void*>(&objc_release);
  EXPECT_EQ(shownAddress(function), shownAddress(function));
  EXPECT_NE(shownAddress(function), ofClass);
}

TEST(ShownAddresses, leaveNumbersAlone) {
  EXPECT_EQ(shownAddress(static_cast<id>(nullptr)), 0u);
  EXPECT_EQ(shownAddress(static_cast<const void*>(nullptr)), 0u);
  for (const std::uintptr_t number :
       {std::uintptr_t(8), std::uintptr_t(123'456), ~std::uintptr_t(0)})
    EXPECT_EQ(shownAddress(reinterpret_cast<const void*>(number)), number);
}

}  // namespace
