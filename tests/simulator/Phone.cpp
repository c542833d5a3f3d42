#include "simulator/machine/Phone.h"

#include <nlohmann/json.hpp>

#include "tests/simulator/TestPhone.h"

namespace sim {
namespace {

class PhoneTest : public MachineTest {};

TEST_F(PhoneTest, IsTheCurrentOne) {
  EXPECT_EQ(&Phone::current(), &phone);
}

TEST_F(PhoneTest, FilesLieBelowTheRoot) {
  EXPECT_EQ(phone.file("/var/jb/x.plist"), "/nonexistent/var/jb/x.plist");
  EXPECT_EQ(phone.file("var/jb"), "/nonexistent/var/jb");
  EXPECT_EQ(phone.file("/var//./jb/"), "/nonexistent/var/jb/");
}

TEST_F(PhoneTest, NoPathLeavesTheRoot) {
  EXPECT_EQ(phone.file("/../../etc/passwd"), "/nonexistent/etc/passwd");
  EXPECT_EQ(phone.file("../etc/passwd"), "/nonexistent/etc/passwd");
  EXPECT_EQ(phone.file("/var/../../../etc"), "/nonexistent/etc");
  using std::string_view_literals::operator""sv;
  EXPECT_EQ(phone.file("/..\0"sv), "/nonexistent/");
  EXPECT_EQ(phone.file("/var/..\0/..\0"sv), "/nonexistent/");
  EXPECT_EQ(phone.file("/var/a\0b"sv), "/nonexistent/var/a");
}

TEST_F(PhoneTest, SurvivorsGetBackWhatTheySaved) {
  int position = 42;
  phone.survives("player", {[&position] { return nlohmann::json(position); },
                            [&position](const nlohmann::json& saved) { saved.get_to(position); }});
  const nlohmann::json saved = phone.saveSurvivors();
  position = 0;
  phone.restoreSurvivors(saved);
  EXPECT_EQ(position, 42);
}

TEST_F(PhoneTest, ASurvivorThatWasNotSavedIsLeftAlone) {
  int position = 1;
  phone.survives("player", {[] { return nlohmann::json(); },
                            [&position](const nlohmann::json&) { position = 2; }});
  phone.restoreSurvivors(nlohmann::json::object());
  EXPECT_EQ(position, 1);
}

TEST(PhoneDeathTest, ThereMustBeAPhone) {
  EXPECT_DEATH(Phone::current(), "before a phone exists");
}

TEST(Setup, KnowsWhatIsMissing) {
  sim::Setup setup;
  EXPECT_TRUE(setup.hasClass("A"));
  setup.missingClasses.insert("A");
  setup.missingMethods.insert("B pause");
  EXPECT_FALSE(setup.hasClass("A"));
  EXPECT_TRUE(setup.hasClass("B"));
  EXPECT_FALSE(setup.hasMethod("B", "pause"));
  EXPECT_TRUE(setup.hasMethod("B", "play"));
}

}  // namespace
}  // namespace sim
