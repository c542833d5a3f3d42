// Bytes that are no compiled layout are told as such, with the place.
#include <gtest/gtest.h>

#include "tools/nibc/nib/Graph.h"
#include "tools/nibc/nib/Reader.h"
#include "tools/nibc/nib/Writer.h"

namespace nib {
namespace {

// Every kind of value, in 5 objects, of which two share a value, and 3 classes.
Archive sample() {
  Archive archive;
  archive.objects = {{0, 0, 9}, {1, 9, 2}, {1, 9, 1}, {2, 11, 0}, {2, 5, 3}};
  archive.keys = {"a", "long key", ""};
  archive.values = {{0, Integer{-1, 1}},
                    {1, Integer{300, 2}},
                    {2, Integer{70000, 4}},
                    {0, Integer{-5, 8}},
                    {0, true},
                    {1, false},
                    {0, 1.5F},
                    {0, 0.1},
                    {2, Data("\0\xff\x80", 3)},
                    {1, Nil()},
                    {0, Reference{4}}};
  archive.classes = {{"NSObject", {}}, {"First", {0, 2}}, {"Second", {}}};
  return archive;
}

const std::string firstValue("\x80\0\xff", 3);

std::string problemOf(const std::string& bytes) {
  try {
    read(bytes);
  } catch (const FormatError& error) {
    return error.what();
  }
  return "";
}

std::string changed(std::size_t offset, const std::string& bytes) {
  return write(sample()).replace(offset, bytes.size(), bytes);
}

TEST(Reading, GivesBackEveryKindOfValue) {
  const Archive again = read(write(sample()));
  EXPECT_EQ(again.format, 1U);
  EXPECT_EQ(again.coder, 9U);
  ASSERT_EQ(again.values.size(), 11U);
  EXPECT_EQ(std::get<Integer>(again.values[0].content).value, -1);
  EXPECT_EQ(std::get<Integer>(again.values[1].content).bytes, 2U);
  EXPECT_EQ(std::get<Integer>(again.values[2].content).value, 70000);
  EXPECT_EQ(std::get<Integer>(again.values[3].content).value, -5);
  EXPECT_TRUE(std::get<bool>(again.values[4].content));
  EXPECT_FALSE(std::get<bool>(again.values[5].content));
  EXPECT_EQ(std::get<float>(again.values[6].content), 1.5F);
  EXPECT_EQ(std::get<double>(again.values[7].content), 0.1);
  EXPECT_EQ(std::get<Data>(again.values[8].content), Data("\0\xff\x80", 3));
  EXPECT_TRUE(std::holds_alternative<Nil>(again.values[9].content));
  EXPECT_EQ(std::get<Reference>(again.values[10].content).object, 4U);
  EXPECT_EQ(again.keys, sample().keys);
  EXPECT_EQ(again.classes[1].fallbacks, (std::vector<std::uint32_t>{0, 2}));
  EXPECT_EQ(again.objects[2].firstValue, 9U);
}

TEST(Reading, ThenWritingGivesTheSameBytes) {
  Archive archive = sample();
  archive.format = 0;
  archive.coder = 10;
  archive.keys.resize(200, "key beyond the first seven bits");
  EXPECT_EQ(write(read(write(archive))), write(archive));
}

// The bytes as the format describes them, without the writer's help.
TEST(Reading, TakesTheKnownBytes) {
  const std::string bytes(
      "NIBArchive\1\0\0\0\x09\0\0\0"
      "\1\0\0\0\x32\0\0\0"
      "\1\0\0\0\x35\0\0\0"
      "\2\0\0\0\x37\0\0\0"
      "\1\0\0\0\x3b\0\0\0"
      "\x80\x80\x82"
      "\x81k"
      "\x80\x05"
      "\x80\x04"
      "\x82\x80X\0",
      63);
  const Archive archive = read(bytes);
  EXPECT_TRUE(std::get<bool>(archive.values[0].content));
  EXPECT_FALSE(std::get<bool>(archive.values[1].content));
  EXPECT_EQ(archive.classes[0].name, "X");
  EXPECT_EQ(write(archive), bytes);
}

TEST(Reading, NoPartOfAFileIsAFile) {
  const std::string whole = write(sample());
  for (std::size_t length = 0; length < whole.size(); ++length)
    EXPECT_NE(problemOf(whole.substr(0, length)), "") << length;
}

TEST(Reading, NamesWhatIsWrong) {
  EXPECT_EQ(problemOf(""), "offset 0: the file ends within the header");
  EXPECT_EQ(problemOf("bplist00bplist00"),
            "offset 0: is no compiled layout: it does not begin with NIBArchive");
  EXPECT_EQ(problemOf(changed(10, "\2")), "offset 10: format 2 is too new");
  EXPECT_EQ(problemOf(changed(18, std::string(1, '\0'))), "offset 18: there is no root object");
  EXPECT_EQ(problemOf(changed(22, "\x33")),
            "offset 22: the objects are said to begin at 51, but what comes before ends at 50");
  EXPECT_EQ(problemOf(write(sample()) + "x"),
            "offset " + std::to_string(write(sample()).size()) + ": bytes follow the last class");
}

TEST(Reading, ChecksEveryIndex) {
  EXPECT_EQ(problemOf(changed(50, "\x83")), "offset 50: class 3 does not exist: there are 3");
  EXPECT_EQ(problemOf(changed(52, "\x8c")),
            "offset 51: an object's values end at 12, but there are 11");
  const std::size_t values = write(sample()).find(firstValue);
  EXPECT_EQ(problemOf(changed(values, "\x83")).substr(9), ": key 3 does not exist: there are 3");
  Archive archive = sample();
  archive.values[10].content = Reference{5};
  EXPECT_NE(problemOf(write(archive)).find("object 5 does not exist: there are 5"),
            std::string::npos);
  archive = sample();
  archive.classes[1].fallbacks = {3};
  EXPECT_NE(problemOf(write(archive)).find("class 3 does not exist: there are 3"),
            std::string::npos);
}

TEST(Reading, ChecksNumbersAndNames) {
  EXPECT_EQ(problemOf(changed(50, std::string("\0\x80", 2))),
            "offset 50: class is written longer than it needs");
  EXPECT_EQ(problemOf(changed(50, std::string(6, '\0'))),
            "offset 50: class does not fit into 32 bits");
  Archive archive = sample();
  archive.classes[2].name = std::string("A\0B", 3);
  EXPECT_NE(problemOf(write(archive)).find("a class name does not end with its only NUL"),
            std::string::npos);
  const std::size_t type = write(sample()).find(firstValue) + 1;
  EXPECT_NE(problemOf(changed(type, "\x0b")).find("a value has the unknown type 11"),
            std::string::npos);
}

TEST(Writing, ChoosesTheWidthsOfInterfaceBuilder) {
  const std::pair<std::int64_t, unsigned> widths[] = {{0, 1},          {127, 1},   {128, 2},
                                                      {32767, 2},      {32768, 4}, {2147483647, 4},
                                                      {2147483648, 8}, {-1, 8}};
  for (const auto& [value, bytes] : widths) {
    Graph graph;
    Node* root = graph.make("NSObject");
    root->setInteger("k", value);
    EXPECT_EQ(std::get<Integer>(Graph::archive(root).values[0].content).bytes, bytes) << value;
  }
}

}  // namespace
}  // namespace nib
