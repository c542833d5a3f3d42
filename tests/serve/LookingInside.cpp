// GET /api/views: what stands on the screen, and who takes a touch.
#include <gtest/gtest.h>

#include "tests/serve/ServedProgram.h"

namespace sim {
namespace {

json views(const ServedProgram& program, const std::string& query = "") {
  return program.get("/api/views" + query).asJson();
}

// All of that class, from the lowest to the uppermost.
void addEach(const std::string& name, const json& view, json& found) {
  if (view.at("class") == name) found.push_back(view);
  for (const json& child : view.at("children")) addEach(name, child, found);
}

json each(const std::string& name, const json& answer) {
  json found = json::array();
  for (const json& window : answer.at("views")) addEach(name, window, found);
  return found;
}

TEST(LookingInside, TellsWhoTakesATouch) {
  const ServedProgram program;
  program.command({"unlock", "control-center open", "advance 1s"});
  const std::string before = program.journal();
  const json inside = views(program, "?x=61&y=162"), button = each("CCUIRoundButton", inside)[0];
  EXPECT_EQ(inside.at("hit"), (json{{"view", button.at("id")},
                                    {"handler", button.at("id")},
                                    {"class", "CCUIRoundButton"}}));
  EXPECT_EQ(
      button.at("actions"),
      (json{{{"events", {"touchUpInside"}}, {"target", "CCUIRoundButton"}, {"action", "_tap"}}}));
  EXPECT_FALSE(button.contains("untouchable"));
  EXPECT_EQ(button.at("children")[0].at("untouchable"), "takes no touches");
  EXPECT_EQ(program.journal(), before);
  EXPECT_EQ(program.value(button.at("target").get<std::string>() + ".isSelected"), "NO");
}

TEST(LookingInside, TouchesNobodyBesideTheScreenOrWithoutAPoint) {
  const ServedProgram program;
  EXPECT_EQ(views(program).at("hit"), nullptr);
  EXPECT_EQ(views(program, "?x=-50&y=3").at("hit"), nullptr);
  EXPECT_EQ(program.get("/api/views?x=1").error(), "expected both x and y, or neither");
  EXPECT_EQ(program.get("/api/views?x=nan&y=1").error(), "expected x, in points");
}

TEST(LookingInside, FindsNothingOnAPhoneWhoseHostIsGone) {
  const ServedProgram program;
  program.command("kill");
  EXPECT_EQ(views(program), (json{{"views", json::array()}, {"hit", nullptr}}));
}

}  // namespace
}  // namespace sim
