// Which type strings describe the same calling convention. The runtime's strings carry frame
// offsets, qualifiers and names that ours do not.
#include <gtest/gtest.h>

#include "objc/Check.h"

namespace {

void compare(const char* mine, const char* registered) {
  objc::requireSameTypes("comparison", objc_getClass("NSObject"), objc::selector<"run:">(), mine,
                         registered);
}

struct TypePair {
  const char* mine;
  const char* registered;
};

struct SameTypes : testing::TestWithParam<TypePair> {};
TEST_P(SameTypes, AreAccepted) {
  compare(GetParam().mine, GetParam().registered);
}
INSTANTIATE_TEST_SUITE_P(
    TypeComparison, SameTypes,
    testing::Values(TypePair{"v@:", "v16@0:8"}, TypePair{"v@:q", "v24@0:8q16"},
                    TypePair{"@@:@", "@24@0:8@\"NSString\"16"}, TypePair{"v@:@", "v@:@?"},
                    TypePair{"v@:@?B", "v28@0:8@?16B24"}, TypePair{"@@:", "#16@0:8"},
                    TypePair{"r*@:", "*16@0:8"}, TypePair{"v@:r*", "v24@0:8r*16"},
                    TypePair{"v@:^v", "v@:*"}, TypePair{"v@:^@", "v24@0:8^@16"},
                    TypePair{"v@:^@", "v24@0:8o^@16"}, TypePair{"v@:r^q", "v@:^q"},
                    TypePair{"v@:^{A=dd}q", "v@:^{B=ii}q"}, TypePair{"v@:", "Vv16@0:8"},
                    TypePair{"{Point=dd}@:", "{CGPoint=dd}16@0:8"},
                    TypePair{"v@:{R={P=dd}{S=dd}}", "v48@0:8{CGRect={CGPoint=dd}{CGSize=dd}}16"},
                    TypePair{"v@:{A=q^v}", "v@:{B=q^{C=d}}"},
                    TypePair{"v@:{Opaque}", "v@:{Opaque}"}, TypePair{"v@:", nullptr}));

struct DifferentTypes : testing::TestWithParam<TypePair> {};
using DifferentTypesDeathTest = DifferentTypes;
TEST_P(DifferentTypesDeathTest, Stop) {
  EXPECT_DEATH(compare(GetParam().mine, GetParam().registered),
               "type mismatch in comparison of -\\[NSObject run:\\]: ");
}
INSTANTIATE_TEST_SUITE_P(
    TypeComparison, DifferentTypesDeathTest,
    testing::Values(TypePair{"v@:", "@16@0:8"}, TypePair{"v@:i", "v20@0:8q16"},
                    TypePair{"v@:d", "v20@0:8f16"}, TypePair{"v@:c", "v20@0:8B16"},
                    TypePair{"v@:q", "v24@0:8Q16"}, TypePair{"v@:@", "v24@0:8^@16"},
                    TypePair{"v@::", "v24@0:8@16"}, TypePair{"v@:q", "v16@0:8"},
                    TypePair{"v@:", "v24@0:8q16"}, TypePair{"{P=dd}@:", "{P=ff}16@0:8"},
                    TypePair{"{P=dd}@:", "{P=ddd}16@0:8"}, TypePair{"{P=ddd}@:", "{P=dd}16@0:8"},
                    TypePair{"v@:{R={P=dd}{S=dd}}", "v@:{R={P=dd}{S=dq}}"},
                    TypePair{"v@:{One}", "v@:{Two}"}, TypePair{"v@:{P=dd}", "v@:@16"}));

TEST(TypeComparisonDeathTest, SaysWhereWhatWasExpectedAndWhatFound) {
  EXPECT_DEATH(compare("v@:qi", "v32@0:8q16@\"NSString\"24"),
               "type mismatch in comparison of -\\[NSObject run:\\]: argument 2: expected "
               "'@\"NSString\"', found 'i'");
  EXPECT_DEATH(compare("@@:", "B16@0:8"), "result: expected 'B', found '@'");
  EXPECT_DEATH(compare("v@:", "v24@0:8q16"), "argument 1: expected 'q', found ''");
}

}  // namespace
