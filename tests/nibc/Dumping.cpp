#include <gtest/gtest.h>

#include "tools/nibc/nib/Dump.h"
#include "tools/nibc/nib/Geometry.h"
#include "tools/nibc/nib/Quoting.h"

namespace nib {
namespace {

TEST(Dumping, ShowsEveryKindOfValue) {
  Archive archive;
  archive.objects = {{0, 0, 9}, {1, 9, 1}, {2, 10, 1}};
  archive.keys = {"a", "NS.bytes", "NS.intval"};
  archive.values = {{0, Integer{-1, 8}},
                    {0, true},
                    {0, false},
                    {0, 0.1F},
                    {0, 0.1},
                    {0, Data("\1\xff")},
                    {0, Nil()},
                    {0, Reference{1}},
                    {0, geometry({0, -0.5})},
                    {1, Data("\"é\"\n")},
                    {2, Integer{7, 1}}};
  archive.classes = {{"NSObject", {}}, {"NSString", {0, 2}}, {"NSNumber", {}}};
  EXPECT_EQ(dump(archive), R"(format 1, coder 9
class NSString, else NSObject, else NSNumber
@0 NSObject
    a = -1 (64 bits)
    a = true
    a = false
    a = float 0.1
    a = double 0.1
    a = <01 ff>
    a = nil
    a = @1 NSString "\"é\"\n"
    a = {0, -0.5}
@1 NSString
    NS.bytes = "\"é\"\n"
@2 NSNumber
    NS.intval = 7 (8 bits)
)");
}

TEST(Dumping, SendsNothingStrangeToTheTerminal) {
  EXPECT_EQ(escaped("\x1b[2J\x7f\\"), "\\x1b[2J\\x7f\\\\");
  EXPECT_EQ(escaped("\xc0\xaf \xed\xa0\x80 \xf5 \xe2\x82"),
            "\\xc0\\xaf \\xed\\xa0\\x80 \\xf5 \\xe2\\x82");
  EXPECT_EQ(escaped("€ 𝄞 ي"), "€ 𝄞 ي");
}

TEST(Geometry, IsReadInBothWidths) {
  EXPECT_EQ(geometryNumbers(geometry({1, 2.5})), (std::vector<double>{1, 2.5}));
  EXPECT_EQ(geometryNumbers(Data("\6\0\0\x80\x3f", 5)), (std::vector<double>{1}));
  EXPECT_FALSE(geometryNumbers(geometry({1}).substr(0, 8)));
  EXPECT_FALSE(geometryNumbers(""));
  EXPECT_FALSE(geometryNumbers("\7"));
  EXPECT_FALSE(geometryNumbers(Data("\5\0\0\x80\x3f", 5)));
}

}  // namespace
}  // namespace nib
