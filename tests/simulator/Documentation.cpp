// The page about the language is complete, and its generated part is what the program prints.
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "tests/simulator/RunProgram.h"

namespace sim {
namespace {

std::string page() {
  std::ifstream stream(LANGUAGE_PAGE);
  return {std::istreambuf_iterator<char>(stream), {}};
}

TEST(Documentation, TheReferenceIsCurrent) {
  const std::string heading = "## Commands\n\n";
  const auto start = page().find(heading);
  ASSERT_NE(start, std::string::npos);
  EXPECT_EQ(page().substr(start + heading.size()), runSimulator("commands").output)
      << "renew docs/phone-scripts.md from `dozewell-simulator commands`";
}

// Every script of the page's introduction, which stands in fenced blocks marked "phone".
TEST(Documentation, TheExamplesWork) {
  const std::string fence = "```phone\n";
  std::size_t examples = 0;
  const std::string text = page();
  for (auto at = text.find(fence); at != std::string::npos; at = text.find(fence, at)) {
    at += fence.size();
    const std::string script = text.substr(at, text.find("```", at) - at);
    const std::string file = writeFile("example.phone", script);
    const Outcome outcome = runSimulator("play --quiet '" + file + "'");
    EXPECT_EQ(outcome.status, 0) << script << outcome.errors;
    ++examples;
  }
  EXPECT_GE(examples, 2u);
}

}  // namespace
}  // namespace sim
