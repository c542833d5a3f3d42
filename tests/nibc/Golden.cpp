// Documents next to this file, each with everything that a kind of element can say, and what
// becomes of it.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "tools/nibc/Compiler.h"
#include "tools/nibc/nib/Dump.h"
#include "tools/nibc/nib/Reader.h"
#include "tools/nibc/nib/Writer.h"

namespace xib {
namespace {

std::string contents(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  EXPECT_TRUE(file) << path;
  return {std::istreambuf_iterator<char>(file), {}};
}

class Golden : public testing::TestWithParam<const char*> {};

TEST_P(Golden, IsCompiledAsRecorded) {
  const std::string name = std::string(GOLDEN_FOLDER "/") + GetParam();
  const nib::Archive archive = compile(contents(name + ".xib"));
  EXPECT_EQ(nib::dump(archive), contents(name + ".txt"));
  const std::string bytes = nib::write(archive);
  EXPECT_EQ(nib::write(nib::read(bytes)), bytes);
}

INSTANTIATE_TEST_SUITE_P(Documents, Golden,
                         testing::Values("view", "label", "button", "stack", "constraints"),
                         [](const auto& test) { return std::string(test.param); });

TEST(Golden, NoRecordIsForgotten) {
  std::size_t documents = 0;
  for (const auto& entry : std::filesystem::directory_iterator(GOLDEN_FOLDER))
    if (entry.path().extension() == ".xib") ++documents;
  EXPECT_EQ(documents, 5U);
}

}  // namespace
}  // namespace xib
