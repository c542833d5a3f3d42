#include "simulator/machine/Journal.h"

#include <unistd.h>

#include "tests/simulator/TestPhone.h"

namespace sim {
namespace {

class JournalTest : public MachineTest {};

TEST_F(JournalTest, RecordsTextWithTheTime) {
  phone.queue.runUntil(2701 * nanosecondsPerSecond);
  phone.journal.record("-[SBMediaController pause]");
  ASSERT_EQ(phone.journal.entries().size(), 1u);
  EXPECT_EQ(formatted(phone.journal.entries()[0]), "  2701.000  -[SBMediaController pause]");
}

TEST_F(JournalTest, TellsObserversInOrder) {
  std::string seen;
  phone.journal.observe([&seen](const JournalEntry& entry) { seen += "1" + entry.text; });
  phone.journal.observe([&seen](const JournalEntry& entry) { seen += "2" + entry.text; });
  phone.journal.record("a");
  EXPECT_EQ(seen, "1a2a");
}

TEST_F(JournalTest, AnObserverMayRecord) {
  std::string lastSeen;
  phone.journal.observe([this](const JournalEntry& entry) {
    for (int inner = 0; entry.text == "outer" && inner < 100; ++inner)
      phone.journal.record("inner");
  });
  phone.journal.observe([&lastSeen](const JournalEntry& entry) { lastSeen = entry.text; });
  phone.journal.record("outer");
  ASSERT_EQ(phone.journal.entries().size(), 101u);
  EXPECT_EQ(phone.journal.entries()[1].text, "inner");
  EXPECT_EQ(lastSeen, "outer");
}

TEST_F(JournalTest, GoesOnWithTheFileOfAnother) {
  int told = 0;
  Journal next(phone.clock);
  next.observe([&told](const JournalEntry&) { ++told; });
  JournalFile shared;
  shared.append({5, "before"});
  next.adopt(dup(shared.descriptor()));
  EXPECT_EQ(next.size(), 1u);
  next.record("after");
  EXPECT_EQ(told, 1);
  EXPECT_EQ(next.entries()[0].time, 5);
  EXPECT_EQ(next.entries(1)[0].text, "after");
  EXPECT_EQ(shared.size(), 1u);
  shared.refresh();
  EXPECT_EQ(shared.size(), 2u);
}

TEST_F(JournalTest, FindsAnyOfManyLines) {
  for (int index = 0; index < 5000; ++index) phone.journal.record(std::to_string(index));
  EXPECT_EQ(phone.journal.size(), 5000u);
  EXPECT_EQ(phone.journal.entries(4321)[0].text, "4321");
  EXPECT_EQ(phone.journal.entries(4999).size(), 1u);
  EXPECT_TRUE(phone.journal.entries(5000).empty());
}

TEST(JournalLine, KeepsItsColumnsForLongTimes) {
  EXPECT_EQ(formatted({500'000, "a"}), "     0.001  a");
  EXPECT_EQ(formatted({123456789 * nanosecondsPerSecond, "a"}), "123456789.000  a");
}

}  // namespace
}  // namespace sim
