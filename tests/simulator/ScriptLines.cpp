#include <gtest/gtest.h>

#include "simulator/script/words/Script.h"

namespace sim {
namespace {

std::vector<std::string> texts(std::string_view line) {
  std::vector<std::string> found;
  for (const Word& word : parseScriptLine(line, 1).words) found.push_back(word.text);
  return found;
}

using Texts = std::vector<std::string>;

TEST(ScriptLine, WordsAreSeparatedByBlanks) {
  EXPECT_EQ(texts("  send \t Class.key  1"), (Texts{"send", "Class.key", "1"}));
  EXPECT_EQ(texts(""), Texts{});
  EXPECT_EQ(texts("   # only a comment"), Texts{});
}

TEST(ScriptLine, ACommentStartsOutsideQuotesOnly) {
  EXPECT_EQ(texts(R"(log "a # b"# c)"), (Texts{"log", "a # b"}));
}

TEST(ScriptLine, QuotesHoldAnything) {
  EXPECT_EQ(texts(R"("" "a b" "\"\\\n\u{1F319}")"), (Texts{"", "a b", "\"\\\n\U0001F319"}));
}

TEST(ScriptLine, BracesHoldBlanks) {
  EXPECT_EQ(texts("{{0, 1}, {2, 3}} x"), (Texts{"{{0, 1}, {2, 3}}", "x"}));
}

TEST(ScriptLine, ColumnsCountCharacters) {
  const ScriptLine line = parseScriptLine("é \"ü\" x", 7);
  EXPECT_EQ(line.number, 7u);
  EXPECT_EQ(line.words[1].column, 3u);
  EXPECT_TRUE(line.words[1].quoted);
  EXPECT_EQ(line.words[2].column, 7u);
  EXPECT_EQ(line.endColumn, 8u);
}

TEST(Script, LinesKeepTheirNumbers) {
  const auto lines = parseScript("# a\r\n\r\nboot\r\nadvance 1s");
  ASSERT_EQ(lines.size(), 2u);
  EXPECT_EQ(lines[0].number, 3u);
  EXPECT_EQ(lines[0].words[0].text, "boot");
  EXPECT_EQ(lines[1].number, 4u);
}

struct Broken {
  std::string text;
  std::size_t line, column;
  std::string message;
};

void PrintTo(const Broken& script, std::ostream* stream) {
  *stream << script.text.substr(0, 20);
}

TEST(Script, APlaylistOfTenThousandSongsIsALine) {
  std::string line = "playlist";
  for (int song = 0; song < 10'000; ++song) line += " \"A song with a täil of words\" 180";
  const ScriptLine parsed = parseScriptLine(line, 1);
  ASSERT_EQ(parsed.words.size(), 20'001u);
  EXPECT_EQ(parsed.words.back().column, parsed.endColumn - 3);
}

TEST(Script, AByteOrderMarkIsNoPartOfIt) {
  const auto lines = parseScript(
      "\xEF\xBB\xBF"
      "boot\n");
  ASSERT_EQ(lines.size(), 1u);
  EXPECT_EQ(lines[0].words[0].text, "boot");
  EXPECT_EQ(lines[0].words[0].column, 1u);
}

class BrokenScript : public testing::TestWithParam<Broken> {};

TEST_P(BrokenScript, NamesPlaceAndReason) {
  try {
    parseScript(GetParam().text);
    FAIL() << "parsed";
  } catch (const ScriptParseError& error) {
    EXPECT_EQ(error.line, GetParam().line);
    EXPECT_EQ(error.column, GetParam().column);
    EXPECT_EQ(error.what(), GetParam().message);
  }
}

const std::string escapes = R"(expected one of the escapes \" \\ \n \u{...})";
const std::string unicode = R"(expected a character's number, as in \u{1F319})";
INSTANTIATE_TEST_SUITE_P(
    Table, BrokenScript,
    testing::Values(Broken{"boot\nlog \"open", 2, 5, "expected a closing quote"},
                    Broken{"log \"open\\\"", 1, 5, "expected a closing quote"},
                    Broken{"log \"a\"b", 1, 8, "expected a space between two words"},
                    Broken{"log a\"b\"", 1, 6, "expected a space before the quote"},
                    Broken{"x {{1, 2}", 1, 3, "expected a closing brace"},
                    Broken{"x {1 # }", 1, 3, "expected a closing brace"},
                    Broken{"x {1}2", 1, 6, "expected a space between two words"},
                    Broken{"x \"\\t\"", 1, 4, escapes}, Broken{"x \"\\", 1, 4, escapes},
                    Broken{"x \"\\u{}\"", 1, 4, unicode}, Broken{"x \"\\u{0}\"", 1, 4, unicode},
                    Broken{"x \"\\u{D800}\"", 1, 4, unicode},
                    Broken{"x \"\\u{110000}\"", 1, 4, unicode},
                    Broken{"x \"\\u{12\"", 1, 4, unicode}, Broken{"x \"\\u41\"", 1, 4, unicode},
                    Broken{"a\nb \xff", 2, 3, "expected UTF-8 text"},
                    Broken{"a\nb \xc3", 2, 3, "expected UTF-8 text"},
                    Broken{std::string("é\0", 3), 1, 2, "expected text, found a NUL byte"},
                    Broken{std::string(3'000'000, 'x'), 1, 1,
                           "expected a line of at most 2097152 bytes, found 3000000"}));

}  // namespace
}  // namespace sim
