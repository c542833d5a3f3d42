// What the loader reads of a slice, and what it refuses.
#include <gtest/gtest.h>

#include <fstream>
#include <functional>
#include <iterator>

#include "simulator/macho/Slice.h"
#include "tests/macho/SampleSlice.h"

namespace {

using namespace sim::macho;

Bytes bytesOf(const std::string& text) {
  return {text, "the file"};
}

Slice sliceOf(const std::string& bytes) {
  return Slice(slicesOf(bytesOf(bytes)).front());
}

// "" when it is taken.
std::string refusal(const std::string& bytes) {
  try {
    sliceOf(bytes);
    return "";
  } catch (const Error& error) {
    return error.what();
  }
}

std::string refusal(const std::function<void(SampleSlice&)>& change) {
  SampleSlice sample;
  change(sample);
  return refusal(sample.bytes());
}

TEST(Slices, haveSegmentsAndSections) {
  const SampleSlice sample;
  const Slice slice = sliceOf(sample.bytes());
  ASSERT_EQ(slice.segments().size(), 3u);
  EXPECT_EQ(slice.size(), 0xC000u);
  const Segment& constants = slice.segments()[1];
  EXPECT_EQ(constants.name, "__DATA_CONST");
  EXPECT_EQ(constants.address, 0x4000u);
  EXPECT_EQ(constants.bytes.size(), 0x100u);
  EXPECT_TRUE(constants.isReadOnly);
  EXPECT_FALSE(slice.segments()[0].isReadOnly);
  EXPECT_TRUE(slice.sectionAt(0x408)->isCode());
  EXPECT_FALSE(slice.sectionAt(0x4000)->isCode());
  EXPECT_EQ(slice.sectionAt(0x7000), nullptr);
  EXPECT_EQ(slice.initialisers(), std::vector<std::uint64_t>{SampleSlice::text});
}

TEST(Slices, nameLibraries) {
  const SampleSlice sample;
  const Slice slice = sliceOf(sample.bytes());
  ASSERT_EQ(slice.libraries().size(), 2u);
  EXPECT_EQ(slice.libraries()[0].name(), "CydiaSubstrate");
  EXPECT_FALSE(slice.libraries()[0].isWeak);
  EXPECT_EQ(slice.libraries()[1].name(), "Cephei");
  EXPECT_TRUE(slice.libraries()[1].isWeak);
}

TEST(Slices, haveFixups) {
  const SampleSlice sample;
  const Slice slice = sliceOf(sample.bytes());
  const Fixups& fixups = slice.fixups();
  ASSERT_EQ(fixups.imports.size(), 2u);
  EXPECT_EQ(fixups.imports[0].name, "_MSHookMessageEx");
  EXPECT_EQ(fixups.imports[0].library, 1);
  EXPECT_FALSE(fixups.imports[0].isWeak);
  EXPECT_EQ(fixups.imports[1].name, "_some");
  EXPECT_TRUE(fixups.imports[1].isWeak);
  ASSERT_EQ(fixups.all.size(), 3u);
  EXPECT_EQ(fixups.all[0].import, 0u);
  EXPECT_EQ(fixups.all[1].place, 0x4008u);
  EXPECT_EQ(fixups.all[1].target, 4u);
  EXPECT_EQ(fixups.all[2].import, Fixup::none);
  EXPECT_EQ(fixups.all[2].target, SampleSlice::text + 8u);
}

TEST(Slices, exportNames) {
  const SampleSlice sample;
  const Slice slice = sliceOf(sample.bytes());
  const Exports expected{{"_preferences", 0x4000}, {"_prefix", 0x408}};
  EXPECT_EQ(slice.exports(), expected);
  EXPECT_EQ(slice.sizeOfExport(0x4000), 24u);
  EXPECT_EQ(slice.sizeOfExport(0x408), 8u);
}

TEST(Slices, areRefusedWithTheReason) {
  const auto refused = [](const std::function<void(SampleSlice&)>& change) {
    return refusal(change);
  };
  using Sample = SampleSlice;
  EXPECT_EQ(refused([](Sample& s) { s.put(Sample::fileType, 2); }),
            "is no dynamic library, which extensions are");
  EXPECT_EQ(refused([](Sample& s) { s.put(s.encryption + 16, 1); }), "is encrypted");
  EXPECT_EQ(refused([](Sample& s) { s.command(0x80000022, 48); }),
            "has fixups of the old kind, which no loader of arm64e takes: link it with "
            "-fixup_chains");
  EXPECT_EQ(refused([](Sample& s) { s.put(s.firstSection, "__objc_classlist"); }),
            "has classes compiled as Objective-C (__objc_classlist), which the simulator's runtime "
            "does not read");
  EXPECT_EQ(refused([](Sample& s) { s.put(s.firstSection + 64, 9); }),
            "has initialisers of the old kind (__text): link it with -init_offsets");
  EXPECT_EQ(refused([](Sample& s) { s.put(s.firstSection + 64, 0x13); }),
            "has variables of threads (__text), which the simulator cannot make");
  EXPECT_EQ(refused([](Sample& s) { s.put(s.textSegment + 60, 7); }),
            "has a segment that is writable and executable, __TEXT");
  EXPECT_EQ(refused([](Sample& s) { s.put16(Sample::fixups + 50, 12); }),
            "has fixups of format 12, with which its pointers would have to be signed as they are "
            "loaded");
}

TEST(Slices, areDamagedWhereTheyLeadOut) {
  using Sample = SampleSlice;
  EXPECT_EQ(refusal([](Sample& s) { s.put(Sample::initialiserTable, 0x4000); }),
            "is damaged: an initialiser at 0x4000 is no code");
  EXPECT_EQ(refusal([](Sample& s) { s.put64(Sample::data + 16, 0x20000); }),
            "is damaged: a pointer leads out of it");
  EXPECT_EQ(refusal([](Sample& s) { s.put64(Sample::data, std::uint64_t{1} << 63 | 2); }),
            "is damaged: a pointer is bound to an import that it does not have");
  EXPECT_EQ(refusal([](Sample& s) { s.put64(s.constSegment + 24, 0x2000); }),
            "is damaged: the segment __DATA_CONST at 0x2000 does not fit to the others");
  EXPECT_EQ(refusal([](Sample& s) { s.put(Sample::exports + 8, 0x00010000); }),
            "is damaged: the table of exports is no tree");
  EXPECT_EQ(refusal([](Sample& s) { s.put64(s.textSegment + 48, 0x10000); }),
            "is damaged: a segment ends too early");
  EXPECT_EQ(refusal([](Sample& s) { s.put(20, 0x100000); }),
            "is damaged: the list of load commands ends too early");
}

// The fuzzer begins with it.
TEST(Slices, areKeptAsASample) {
  std::ifstream stream(SOURCES "/tests/fuzz/corpus/slices/sample.dylib", std::ios::binary);
  const std::string kept(std::istreambuf_iterator<char>(stream), {});
  EXPECT_EQ(kept, SampleSlice().bytes());
}

// Whatever is missing or wrong, reading ends with an error or with a slice.
TEST(Slices, mayEndAnywhere) {
  const SampleSlice sample;
  for (std::size_t length = 8; length < SampleSlice::exports; ++length)
    EXPECT_NE(refusal(sample.bytes().substr(0, length)), "") << length;
}

TEST(Slices, mayHaveAnyByteWrong) {
  const std::string good = SampleSlice().bytes();
  std::size_t refusals = 0;
  for (std::size_t at = 4; at < good.size(); ++at) {
    for (const char wrong : {'\0', '\1', '\x7F', '\xFF'}) {
      std::string bytes = good;
      bytes[at] = wrong;
      refusals += refusal(bytes).empty() ? 0 : 1;
    }
  }
  EXPECT_GT(refusals, 500u);
}

}  // namespace
