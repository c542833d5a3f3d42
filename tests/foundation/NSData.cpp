#include "tests/foundation/FoundationTest.h"

namespace sim {
namespace {

using objc::Object;
using objc::send;
using NSDataTest = FoundationTest;

Object make(const std::string& bytes) {
  return send<Object, "dataWithBytes:length:">(cls("NSData"),
                                               static_cast<const void*>(bytes.data()),
                                               static_cast<unsigned long>(bytes.size()));
}

TEST_F(NSDataTest, keepsBytes) {
  const Object data = make(std::string("a\0b", 3));
  EXPECT_EQ((send<unsigned long, "length">(data)), 3u);
  EXPECT_EQ(static_cast<const char*>(send<const void*, "bytes">(data))[2], 'b');
  EXPECT_TRUE((send<bool, "isEqual:">(data, make(std::string("a\0b", 3)))));
  EXPECT_FALSE((send<bool, "isEqual:">(data, make("ab"))));
}

TEST_F(NSDataTest, readsAndWritesFiles) {
  const Object path = string("/var/mobile/data.bin");
  EXPECT_TRUE((send<bool, "writeToFile:atomically:">(make("content"), path, true)));
  const Object read = send<Object, "dataWithContentsOfFile:">(cls("NSData"), path);
  EXPECT_TRUE((send<bool, "isEqualToData:">(read, make("content"))));
  EXPECT_FALSE((send<Object, "dataWithContentsOfFile:">(cls("NSData"), string("/none"))));
}

TEST_F(NSDataTest, describesItself) {
  EXPECT_EQ(description(make("abc")), "{length = 3, bytes = 0x616263}");
  EXPECT_EQ(description(make(std::string(25, 'a'))),
            "{length = 25, bytes = 0x61616161 61616161 61616161 61616161 ... 61616161 61616161}");
}

}  // namespace
}  // namespace sim
