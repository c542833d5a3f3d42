// What slices import, called as compilers for phones call it: all arguments behind the fixed ones
// on the stack. This system's compilers do that when the registers are full.
#include "simulator/macho/Entries.h"

#include <gtest/gtest.h>

#include <cstring>
#include <fstream>

#include "objc/Message.h"
#include "simulator/foundation/Values.h"
#include "simulator/macho/Imports.h"
#include "tests/foundation/FoundationTest.h"

namespace {

using sim::FoundationTest;
namespace entries = sim::macho::entries;

// `fixed` arguments, then as many as fill the registers for numbers and for addresses.
template <class R, class... Rest>
R sendOnStack(id receiver, const char* selector, id first, Rest... rest) {
  using Prototype = R (*)(id, SEL, id, long, long, long, long, long, double, double, double, double,
                          double, double, double, double, Rest...);
  return reinterpret_cast<Prototype>(&simulatorMachoMsgSend)(
      receiver, sel_registerName(selector), first, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, rest...);
}

class EntriesTest : public FoundationTest {
 protected:
  static id string(const char* text) { return sim::string(text).get(); }
  static id classNamed(const char* name) { return reinterpret_cast<id>(objc_getClass(name)); }
  static std::string textOf(id text) { return sim::text(objc::Object(text)); }
};

TEST_F(EntriesTest, takeFormats) {
  const id format = string("%@ %d %.2f %s %lu");
  const char* expected = "a 1 2.50 b 4";
  EXPECT_EQ(textOf(sendOnStack<id>(classNamed("NSString"), "stringWithFormat:", format, string("a"),
                                   1L, 2.5, "b", 4L)),
            expected);
  const id made = sendOnStack<id>(objc_alloc(objc_getClass("NSString")), "initWithFormat:", format,
                                  string("a"), 1L, 2.5, "b", 4L);
  EXPECT_EQ(textOf(objc_autorelease(made)), expected);
  EXPECT_EQ(textOf(sendOnStack<id>(string("x"), "stringByAppendingFormat:", format, string("a"), 1L,
                                   2.5, "b", 4L)),
            std::string("x") + expected);
  const id changing = objc_autorelease(objc_alloc_init(objc_getClass("NSMutableString")));
  sendOnStack<void>(changing, "appendFormat:", format, string("a"), 1L, 2.5, "b", 4L);
  EXPECT_EQ(textOf(changing), expected);
}

TEST_F(EntriesTest, takeLists) {
  const id none = nullptr;
  const auto count = [](id collection) { return objc::send<unsigned long, "count">(collection); };
  EXPECT_EQ(count(sendOnStack<id>(classNamed("NSArray"), "arrayWithObjects:", string("a"),
                                  string("b"), string("c"), none)),
            3u);
  EXPECT_EQ(count(sendOnStack<id>(classNamed("NSSet"), "setWithObjects:", string("a"), string("b"),
                                  none)),
            2u);
  const id pairs =
      sendOnStack<id>(classNamed("NSDictionary"), "dictionaryWithObjectsAndKeys:", string("a"),
                      string("b"), string("c"), string("d"), none);
  EXPECT_EQ(textOf(objc::send<id, "objectForKey:">(pairs, string("d"))), "c");
}

TEST_F(EntriesTest, passOtherMessagesOn) {
  EXPECT_EQ(sendOnStack<long>(string("four"), "length", nullptr), 4);
  EXPECT_EQ(sendOnStack<id>(nullptr, "stringWithFormat:", string("%d"), 1L), nullptr);
}

TEST_F(EntriesTest, findFunctionsWithDots) {
  using Log = void (*)(id, long, long, long, long, long, long, long, id, long);
  const auto log = reinterpret_cast<Log>(entries::dlsym(reinterpret_cast<void*>(-2), "NSLog"));
  ASSERT_NE(log, nullptr);
  log(string("%@ %d"), 0, 0, 0, 0, 0, 0, 0, string("a"), 7);
  EXPECT_EQ(journal().back(), "log \"a 7\"");
  EXPECT_EQ(entries::dlsym(reinterpret_cast<void*>(-2), "NSLog"), reinterpret_cast<void*>(log));
}

TEST_F(EntriesTest, printIntoMemory) {
  char text[20];
  using Print =
      int (*)(char*, std::size_t, const char*, long, long, long, long, long, long, const char*);
  reinterpret_cast<Print> (&simulatorMachoSnprintf)(text, sizeof text, "%d %s", 0, 0, 0, 0, 0, 12,
                                                    "b");
  EXPECT_STREQ(text, "12 b");
  struct {
    long number;
    const char* word;
  } arguments{34, "c"};
  entries::vsnprintf(text, sizeof text, "%d %s", reinterpret_cast<char*>(&arguments));
  EXPECT_STREQ(text, "34 c");
}

TEST(Entries, doWhatTheNamesSay) {
  char bytes[20] = {};
  entries::memset_pattern16(bytes, "0123456789abcdef", 18);
  EXPECT_STREQ(bytes, "0123456789abcdef01");
  entries::bzero(bytes, 2);
  EXPECT_EQ(std::strlen(bytes + 2), 16u);
  const entries::SineAndCosine both = entries::sincos_stret(0);
  EXPECT_EQ(both.sine, 0);
  EXPECT_EQ(both.cosine, 1);
}

// Whatever the link of the extension may import, line by line: device/imports.txt.
TEST(Imports, areAllThere) {
  std::ifstream list(SOURCES "/device/imports.txt");
  std::string word, library;
  std::size_t count = 0;
  for (std::string line; std::getline(list, line);) {
    if (line.empty() || line.front() == '#') continue;
    const std::string last = line.substr(line.rfind(' ') + 1);
    if (line.starts_with("library ")) {
      library = last.substr(last.rfind('/') + 1);
      EXPECT_TRUE(sim::macho::hasLibrary(library)) << library;
    } else {
      ++count;
      EXPECT_NE(sim::macho::importedAddress(library, last), nullptr) << library << ' ' << last;
    }
  }
  EXPECT_GT(count, 100u);
  EXPECT_FALSE(sim::macho::hasLibrary("UIKit"));
  EXPECT_EQ(sim::macho::importedAddress("libobjc.A.dylib", "_dlsym"), nullptr);
}

// A BOOL comes widened, and is read as one byte from whoever leaves the rest of a register as it
// is.
static_assert(std::is_same_v<objc::Wire<bool>, int> && std::is_same_v<objc::Wire<short>, int>);
static_assert(std::is_same_v<objc::Wire<int>, int> && std::is_same_v<objc::Wire<long>, long>);
static_assert(objc::toWire<bool>(true) == 1 && objc::fromWire<bool>(0x7F00) == false &&
              objc::fromWire<bool>(0x7F01) == true && objc::toWire<signed char>(-1) == -1);

}  // namespace
