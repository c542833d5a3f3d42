#include <climits>
#include <cstdint>

#include "simulator/foundation/PropertyList.h"
#include "simulator/foundation/PropertyListBounds.h"
#include "tests/foundation/FoundationTest.h"

namespace sim {
namespace {

using objc::Object;
using objc::send;

class PropertyListsTest : public FoundationTest {
 protected:
  // Writes a value and reads it back.
  std::string survived(Object value) {
    std::string problem;
    const auto path = phone.file("/list.plist");
    if (!writePropertyList(value, path, &problem)) return problem;
    const Object read = readPropertyList(path, &problem);
    return read ? notation(read) : problem;
  }

  std::string readXml(const std::string& value) {
    writeFile("/list.plist", "<?xml version=\"1.0\" encoding=\"UTF-8\"?><plist version=\"1.0\">" +
                                 value + "</plist>");
    return read();
  }

  std::string read() {
    std::string problem;
    const Object value = readPropertyList(phone.file("/list.plist"), &problem);
    return value ? notation(value) : problem;
  }
};

TEST_F(PropertyListsTest, keepEveryKindOfValue) {
  EXPECT_EQ(survived(string("żółw 😀")), "\"żółw 😀\"");
  EXPECT_EQ(survived(number(true)), "YES");
  EXPECT_EQ(survived(number(false)), "NO");
  EXPECT_EQ(survived(number(0.1)), "0.1");
  const Object nested = dictionary(
      {{string("list"), array({number(1L), string("two")})}, {string("empty"), dictionary({})}});
  std::string problem;
  EXPECT_TRUE(writePropertyList(nested, phone.file("/list.plist"), &problem));
  EXPECT_TRUE(
      (send<bool, "isEqual:">(readPropertyList(phone.file("/list.plist"), &problem), nested)));
  EXPECT_TRUE(readFile("/list.plist").starts_with("bplist00"));
}

TEST_F(PropertyListsTest, keepIntegersWithTheirSign) {
  for (const long value : {0L, 1L, -1L, 127L, 128L, 255L, 65536L, -32769L, LONG_MAX, LONG_MIN})
    EXPECT_EQ(survived(number(value)), std::to_string(value));
  const Object largest = send<Object, "numberWithUnsignedLongLong:">(cls("NSNumber"), ULLONG_MAX);
  EXPECT_EQ(survived(largest), "18446744073709551615");
}

// As the platform writes them: eight bytes for a negative number.
TEST_F(PropertyListsTest, writeNegativeIntegersInEightBytes) {
  std::string problem;
  EXPECT_TRUE(writePropertyList(number(-5L), phone.file("/list.plist"), &problem));
  EXPECT_EQ(readFile("/list.plist").substr(8, 9), "\x13\xff\xff\xff\xff\xff\xff\xff\xfb");
}

TEST_F(PropertyListsTest, keepDatesExactly) {
  for (const double moment : {0.0, 820533600.1, -1.5, 820533600.123456789, 63113904000.0}) {
    std::string problem;
    EXPECT_TRUE(writePropertyList(date(moment), phone.file("/list.plist"), &problem)) << problem;
    const Object read = readPropertyList(phone.file("/list.plist"), &problem);
    EXPECT_EQ((send<double, "timeIntervalSinceReferenceDate">(read)), moment);
  }
}

TEST_F(PropertyListsTest, keepData) {
  const Object data =
      send<Object, "dataWithBytes:length:">(cls("NSData"), static_cast<const void*>("a\0b"), 3ul);
  std::string problem;
  EXPECT_TRUE(writePropertyList(data, phone.file("/list.plist"), &problem));
  EXPECT_TRUE(
      (send<bool, "isEqual:">(readPropertyList(phone.file("/list.plist"), &problem), data)));
}

TEST_F(PropertyListsTest, areReadFromXml) {
  EXPECT_EQ(readXml("<integer>-42</integer>"), "-42");
  EXPECT_EQ(readXml("<integer>9223372036854775807</integer>"), "9223372036854775807");
  EXPECT_EQ(readXml("<integer>-9223372036854775808</integer>"), "-9223372036854775808");
  EXPECT_EQ(readXml("<integer>18446744073709551615</integer>"), "18446744073709551615");
  EXPECT_EQ(readXml("<real>0.5</real>"), "0.5");
  EXPECT_EQ(readXml("<true/>"), "YES");
  EXPECT_EQ(readXml("<string>a &amp; b</string>"), "\"a & b\"");
  EXPECT_EQ(readXml("<date>2027-01-01T22:00:00Z</date>"), "2027-01-01 22:00:00 +0000");
}

TEST_F(PropertyListsTest, reportFilesThatAreNone) {
  std::filesystem::remove(phone.file("/list.plist"));
  EXPECT_NE(read().find("cannot be read"), std::string::npos);
  for (const std::string content :
       {"", "garbage", "bplist00", "bplist00garbagegarbagegarbagegarbagegarbagegarbage",
        "<plist><dict><key>a</key></plist>", "<plist></plist>", "<?xml"}) {
    writeFile("/list.plist", content);
    EXPECT_NE(read().find("is no property list"), std::string::npos) << content << ": " << read();
  }
}

TEST_F(PropertyListsTest, survivesEveryDamagedByte) {
  std::string problem;
  const Object value = dictionary(
      {{string("a"), array({number(1L), date(5), number(-2.5)})}, {string("b"), string("żółw")}});
  ASSERT_TRUE(writePropertyList(value, phone.file("/list.plist"), &problem));
  const std::string good = readFile("/list.plist");
  for (std::size_t at = 0; at < good.size(); ++at) {
    for (const int change : {0x01, 0x10, 0x80, 0xff}) {
      std::string damaged = good;
      damaged[at] = char(damaged[at] ^ change);
      writeFile("/damaged.plist", damaged);
      const objc::AutoreleasePool pool;
      const Object read = readPropertyList(phone.file("/damaged.plist"), &problem);
      if (read) description(read);
    }
    writeFile("/damaged.plist", good.substr(0, at));
    const Object cut = readPropertyList(phone.file("/damaged.plist"), &problem);
    EXPECT_FALSE(cut) << at;
  }
}

TEST_F(PropertyListsTest, refuseToNestTooDeep) {
  std::string open, close;
  for (int i = 0; i < 100'000; ++i) open += "<array>", close += "</array>";
  EXPECT_NE(readXml(open + close).find("nested too deep"), std::string::npos);
}

// A dictionary of one entry: the key, of that marker and bytes, stands for itself.
std::string binaryWithKey(const std::string& key) {
  const std::string list = std::string("bplist00") + "\xd1\x01\x01" + key;
  return list + "\x08\x0b" + std::string(6, '\0') + "\x01\x01" + std::string(7, '\0') + '\x02' +
         std::string(15, '\0') + char(list.size());
}

// libplist ends the program when it is asked for such a key.
TEST_F(PropertyListsTest, refuseKeysWithAZeroCharacter) {
  writeFile("/list.plist", binaryWithKey("\x53"
                                         "abc"));
  EXPECT_EQ(read(), "<NSDictionary>");
  for (const std::string& key : {std::string("\x53"
                                             "a\0b",
                                             4),
                                 std::string("\x62\0a\0\0", 5)}) {
    writeFile("/list.plist", binaryWithKey(key));
    EXPECT_NE(read().find("zero character in a key"), std::string::npos) << read();
  }
  EXPECT_NE(readXml(std::string("<dict><key>a\0b</key><true/></dict>", 34)).find("zero character"),
            std::string::npos);
}

// libplist would cut them off there.
TEST_F(PropertyListsTest, refuseToWriteTextsWithAZeroCharacter) {
  const Object text = string(std::string_view("a\0b", 3));
  EXPECT_NE(survived(text).find("a text with a zero character"), std::string::npos);
  EXPECT_NE(survived(dictionary({{text, number(1L)}})).find("a text with a zero character"),
            std::string::npos);
}

// Each of thirty arrays holds the one below it twice: a billion of the innermost.
TEST_F(PropertyListsTest, refuseToGrowBeyondMemory) {
  std::string list = "bplist00";
  std::string offsets;
  constexpr int levels = 30;
  for (int i = 0; i < levels; ++i) {
    offsets += char(list.size());
    list += std::string("\xa2") + char(i + 1) + char(i + 1);
  }
  offsets += char(list.size());
  list += "\xa0";
  const std::size_t table = list.size();
  list += offsets + std::string(6, '\0') + "\x01\x01";
  list += std::string(7, '\0') + char(levels + 1) + std::string(8, '\0');
  list += std::string(7, '\0') + char(table);
  EXPECT_FALSE(isWithinBounds(list));
  writeFile("/list.plist", list);
  EXPECT_NE(read().find("too large"), std::string::npos);
}

TEST_F(PropertyListsTest, takeNothingElse) {
  const auto plain = objc::adopt(Object(objc_alloc_init(cls("NSObject"))));
  EXPECT_NE(survived(array({plain})).find("is no property list object"), std::string::npos);
  EXPECT_NE(survived(dictionary({{number(1L), number(1L)}})).find("is no property list key"),
            std::string::npos);
}

TEST_F(PropertyListsTest, copyToImmutableValues) {
  const Object changing =
      send<Object, "arrayWithArray:">(cls("NSMutableArray"), array({string("a")}));
  std::string problem;
  const Object copy = propertyListCopy(changing, &problem);
  send<void, "removeAllObjects">(changing);
  EXPECT_EQ((send<unsigned long, "count">(copy)), 1u);
  EXPECT_FALSE(isKindOf(copy, "NSMutableArray"));
}

TEST_F(PropertyListsTest, leaveTheOldFileWhenTheyCannotBeWritten) {
  std::string problem;
  ASSERT_TRUE(writePropertyList(string("old"), phone.file("/list.plist"), &problem));
  const auto plain = objc::adopt(Object(objc_alloc_init(cls("NSObject"))));
  EXPECT_FALSE(writePropertyList(plain, phone.file("/list.plist"), &problem));
  EXPECT_EQ(read(), "\"old\"");
}

}  // namespace
}  // namespace sim
