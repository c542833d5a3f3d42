// What frameworks keep belongs to the phone: one object of each type, which ends with it.
#include <memory>
#include <string>
#include <vector>

#include "simulator/machine/Phone.h"
#include "tests/simulator/TestPhone.h"

namespace sim {
namespace {

struct Counter {
  int value = 0;
};

struct Clocked {
  explicit Clocked(Phone& phone) : clock(&phone.clock) {}
  Clock* clock;
};

std::vector<std::string> ended;

struct Earlier {
  Phone* phone = &Phone::current();
  ~Earlier() { ended.push_back(&Phone::current() == phone ? "earlier, of its phone" : "earlier"); }
};

struct Later {
  Earlier& used = Phone::current().state<Earlier>();
  ~Later() { ended.push_back(&Phone::current().state<Earlier>() == &used ? "later" : "orphan"); }
};

class StateSlotsTest : public MachineTest {};

TEST_F(StateSlotsTest, KeepOneObjectOfEachType) {
  phone.state<Counter>().value = 7;
  phone.state<Clocked>();
  EXPECT_EQ(phone.state<Counter>().value, 7);
}

TEST_F(StateSlotsTest, GiveThePhoneToWhoeverAsksForIt) {
  EXPECT_EQ(phone.state<Clocked>().clock, &phone.clock);
}

TEST_F(StateSlotsTest, BelongToOnePhone) {
  phone.state<Counter>().value = 7;
  Phone other("/nonexistent");
  EXPECT_EQ(other.state<Counter>().value, 0);
}

TEST(StateSlots, EndWithThePhoneTheLatestFirst) {
  ended.clear();
  auto phone = std::make_unique<Phone>("/nonexistent");
  phone->state<Later>();
  phone.reset();
  EXPECT_EQ(ended, (std::vector<std::string>{"later", "earlier, of its phone"}));
}

}  // namespace
}  // namespace sim
