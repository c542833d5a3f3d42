// Files with several slices, and which of them is loaded.
#include <gtest/gtest.h>

#include "simulator/macho/FatFile.h"
#include "tests/macho/SampleSlice.h"

namespace {

using namespace sim::macho;

std::string bigEndian(std::uint32_t number) {
  std::string text(4, '\0');
  for (int index = 3; index >= 0; --index, number >>= 8) text[std::size_t(index)] = char(number);
  return text;
}

std::string slice(const Architecture& architecture) {
  SampleSlice sample;
  sample.put(4, architecture.cpu);
  sample.put(SampleSlice::subtype, architecture.subtype);
  return sample.bytes();
}

std::string fat(const std::vector<Architecture>& all) {
  std::string entries, slices;
  for (const Architecture& each : all) {
    const std::string bytes = slice(each);
    entries += bigEndian(each.cpu) + bigEndian(each.subtype) +
               bigEndian(std::uint32_t(8 + 20 * all.size() + slices.size())) +
               bigEndian(std::uint32_t(bytes.size())) + bigEndian(0);
    slices += bytes;
  }
  return bigEndian(0xCAFEBABE) + bigEndian(std::uint32_t(all.size())) + entries + slices;
}

// The slice's name, or the error.
std::string chosen(const std::string& file, bool authenticates) {
  try {
    return choose(slicesOf(Bytes(file, "the file")), authenticates).architecture.name();
  } catch (const Error& error) {
    return error.what();
  }
}

constexpr Architecture intel{0x01000007, 3}, old{0x0100000C, 2};

TEST(FatFiles, areKnownByTheirBeginning) {
  const auto isOne = [](const std::string& text) { return isMachO(Bytes(text, "the file")); };
  EXPECT_TRUE(isOne(slice(arm64)));
  EXPECT_TRUE(isOne(fat({arm64, arm64e})));
  EXPECT_FALSE(
      isOne("\x7F"
            "ELF and so on"));
  EXPECT_FALSE(isOne("short"));
  EXPECT_FALSE(isOne(""));
  // A class of Java, of version 52.
  EXPECT_FALSE(isOne(bigEndian(0xCAFEBABE) + bigEndian(52)));
}

TEST(FatFiles, giveTheProcessorItsSlice) {
  const std::string both = fat({arm64, arm64e});
  EXPECT_EQ(chosen(both, true), "arm64e");
  EXPECT_EQ(chosen(both, false), "arm64");
  EXPECT_EQ(chosen(fat({intel, arm64}), true), "arm64");
  EXPECT_EQ(chosen(slice(arm64e), true), "arm64e");
}

TEST(FatFiles, areRefusedWithoutASliceForTheProcessor) {
  EXPECT_EQ(chosen(slice(arm64e), false),
            "has only code that signs its pointers (arm64e), and this processor cannot");
  EXPECT_EQ(chosen(fat({intel, old}), true),
            "has no code for arm64 or arm64e, only for: x86_64, arm64e.old");
}

TEST(FatFiles, mayHaveASliceOf32Bits) {
  const auto of32Bits = [](std::string file, std::size_t slice) {
    file[slice] = '\xCE';
    return file;
  };
  const Architecture old32{12, 9};
  const std::size_t first = 8 + 20 * 2;
  EXPECT_EQ(chosen(of32Bits(fat({old32, arm64}), first), true), "arm64");
  EXPECT_EQ(chosen(of32Bits(slice(old32), 0), true),
            "has no code for arm64 or arm64e, only for: arm");
}

TEST(FatFiles, areDamagedWhereASliceIsNotThere) {
  const std::string both = fat({arm64, arm64e});
  EXPECT_EQ(chosen(both.substr(0, both.size() - 1), true), "is damaged: a slice ends too early");
  EXPECT_EQ(chosen(both.substr(0, 20), true), "is damaged: the file ends too early");
  std::string wrong = both;
  wrong[48] = 'x';
  EXPECT_EQ(chosen(wrong, true), "is damaged: a slice does not begin as one");
  EXPECT_EQ(chosen(fat({}), true), "is damaged: it has no slices");
}

TEST(FatFiles, areDamagedWhereSlicesOverlap) {
  std::string both = fat({arm64, arm64e});
  const std::size_t offset = 8 + 8, entry = 20;
  both.replace(offset + entry, 4, both.substr(offset, 4));
  EXPECT_EQ(chosen(both, true), "is damaged: two slices overlap");
}

}  // namespace
