#include <nlohmann/json.hpp>

#include "simulator/runwright/ShortcutRunner.h"
#include "tests/hosts/TestHost.h"

namespace sim {
namespace {

class Shortcuts : public TestHost {
 protected:
  static ShortcutRunner& runner() { return ShortcutRunner::current(); }
  static objc::Object manager() {
    return objc::send<objc::Object, "sharedManager">(objc_getClass("RunwrightManager"));
  }
  static bool knows(const char* name) {
    return objc::send<bool, "containsObject:">(objc::send<objc::Object, "workflowNames">(manager()),
                                               string(name));
  }
};

TEST_F(Shortcuts, WithoutTheRunnerThereIsNoClass) {
  boot();
  EXPECT_EQ(objc_getClass("RunwrightManager"), nullptr);
}

TEST_F(Shortcuts, TheRunnerCannotComeToARunningHost) {
  boot();
  EXPECT_FALSE(runner().install());
  EXPECT_EQ(objc_getClass("RunwrightManager"), nullptr);
}

TEST_F(Shortcuts, AreThoseOfTheMoment) {
  EXPECT_TRUE(runner().install());
  boot();
  EXPECT_FALSE(knows("Lights"));
  runner().setShortcuts({"Good Night", "Lights"});
  EXPECT_TRUE(knows("Lights"));
  EXPECT_FALSE(knows("lights"));
  runner().setShortcuts({});
  EXPECT_FALSE(knows("Lights"));
}

TEST_F(Shortcuts, AreJournalledWhenTheyRun) {
  runner().install();
  boot();
  objc::send<void, "runWorkflowWithName:">(manager(), string("Good Night"));
  EXPECT_EQ(journal(),
            std::vector<std::string>{"-[RunwrightManager runWorkflowWithName:\"Good Night\"]"});
}

TEST_F(Shortcuts, TheRunnerIsThereAgainAfterARestart) {
  runner();
  boot();
  phone.restoreSurvivors({{"shortcuts", {{"installed", true}, {"shortcuts", {"Lights"}}}}});
  EXPECT_TRUE(knows("Lights"));
}

}  // namespace
}  // namespace sim
