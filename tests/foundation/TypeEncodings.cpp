#include <gtest/gtest.h>

#include <stdexcept>

#include "simulator/foundation/TypeEncoding.h"

namespace sim {
namespace {

TEST(TypeEncoding, MethodTypesWithoutReceiverAndSelector) {
  const Signature signature = parseMethodTypes("d24@0:8q16");
  EXPECT_EQ(signature.result.kind, 'd');
  ASSERT_EQ(signature.arguments.size(), 1u);
  EXPECT_EQ(signature.arguments[0].kind, 'q');
}

TEST(TypeEncoding, DropsWhatIsInformational) {
  EXPECT_EQ(normalizedTypes("v24@0:8@\"NSString\"16"), "v@:@");
  EXPECT_EQ(normalizedTypes("Vv@:r*N^@"), "v@:*^@");
  EXPECT_EQ(normalizedTypes("{CGPoint=\"x\"d\"y\"d}@:"), "{CGPoint=dd}@:");
  EXPECT_EQ(normalizedTypes("v@:@?"), "v@:@?");
  EXPECT_EQ(normalizedTypes("@24@0:8^{_NSZone=}16"), "@@:^{_NSZone=}");
  EXPECT_EQ(normalizedTypes("v@:^[4i]^(u=id)"), "v@:^[4i]^(u=id)");
  EXPECT_EQ(normalizedTypes("v@:^{opaque}^{CGPoint=dd}^v^?"), "v@:^{opaque}^{CGPoint=dd}^v^?");
}

TEST(TypeEncoding, StructuresHaveTheirMembersSizes) {
  const TypeEncoding rect = parseType("{CGRect={CGPoint=dd}{CGSize=dd}}");
  EXPECT_EQ(rect.members.size(), 2u);
  EXPECT_EQ(rect.size(), 32u);
  EXPECT_EQ(rect.alignment(), 8u);
  const TypeEncoding mixed = parseType("{Mixed=Bfs}");
  EXPECT_EQ(mixed.size(), 12u);
  EXPECT_EQ(mixed.alignment(), 4u);
  EXPECT_EQ(parseType("{Padded=dB}").size(), 16u);
}

TEST(TypeEncoding, StructuresSayWhereTheirMembersAre) {
  const TypeEncoding mixed = parseType("{Mixed=Bfs{CGPoint=dd}}");
  EXPECT_EQ(mixed.offsetOf(0), 0u);
  EXPECT_EQ(mixed.offsetOf(1), 4u);
  EXPECT_EQ(mixed.offsetOf(2), 8u);
  EXPECT_EQ(mixed.offsetOf(3), 16u);
  EXPECT_EQ(mixed.scalars(), "Bfsdd");
}

TEST(TypeEncoding, TheFirstOfSeveralStandsAlone) {
  EXPECT_EQ(firstType("{CGPoint=\"x\"d\"y\"d}24@0:8")->text, "{CGPoint=dd}");
  EXPECT_EQ(firstType("{S=^{opaque}i}d")->size(), 16u);
  EXPECT_EQ(firstType("rq")->kind, 'q');
  for (const char* none : {"", "[4i]", "b3", "{CGPoint=dd", "(u=id)"})
    EXPECT_FALSE(firstType(none)) << none;
  EXPECT_EQ(typeLetter("rd16"), 'd');
  EXPECT_EQ(typeLetter(""), '\0');
}

TEST(TypeEncoding, RejectsWhatIsNone) {
  for (const char* text :
       {"", "v", "v@", "v:@", "x@:", "v@:[4i]", "v@:(u=id)", "v@:{CGPoint=dd", "v@:{CGPoint}",
        "v@:{CGPoint=}", "v@:^", "v@:^{a", "v@:@\"open", "v@:b4"})
    EXPECT_THROW(parseMethodTypes(text), std::invalid_argument) << text;
  EXPECT_THROW(parseType("ii"), std::invalid_argument);
  EXPECT_THROW(parseType(std::string(1000, '^') + "i"), std::invalid_argument);
}

}  // namespace
}  // namespace sim
