// Scenes as lists of nodes, and what changes of them.
#include <set>

#include "simulator/drawing/FlatScene.h"
#include "simulator/drawing/SceneJson.h"
#include "tests/drawing/DrawingTest.h"

namespace sim {
namespace {

class FlatScenes : public DrawingTest {
 protected:
  void SetUp() override {
    DrawingTest::SetUp();
    window = shownWindow();
    view = make("UIView", rect(10, 20, 30, 40));
    add(window, view);
  }
  void TearDown() override {
    view = nullptr;
    window = nullptr;
    DrawingTest::TearDown();
  }
  FlatScene now() const { return flattened(screenScene()); }
  std::string nameOf(Object its) const { return std::to_string(drawn(its).id); }

  Strong<Object> window;
  Strong<Object> view;
};

using Names = std::vector<std::string>;

TEST_F(FlatScenes, NodesNameTheirChildren) {
  const auto scene = now();
  EXPECT_EQ(scene.size(), 3U);
  EXPECT_EQ(scene.at("0").children, Names{nameOf(window)});
  EXPECT_EQ(scene.at(nameOf(window)).children, Names{nameOf(view)});
  EXPECT_EQ(scene.at(nameOf(view)).children, Names{});
}

TEST_F(FlatScenes, NothingChangesByLooking) {
  EXPECT_FALSE(changesBetween(now(), now()).any());
}

TEST_F(FlatScenes, OnlyWhatChangedIsNamed) {
  const auto before = now();
  const auto added = make("UIView");
  send<void, "setAlpha:">(view.get(), 0.5);
  add(view, added);
  const auto then = now();
  const auto changes = changesBetween(before, then);
  Names changed;
  for (const auto* each : changes.changed) changed.push_back(each->first);
  EXPECT_EQ(std::set(changed.begin(), changed.end()), (std::set{nameOf(view), nameOf(added)}));
  EXPECT_TRUE(changes.gone.empty());
  send<void, "removeFromSuperview">(added.get());
  EXPECT_EQ(changesBetween(then, now()).gone, Names{nameOf(added)});
}

TEST_F(FlatScenes, PicturesOfBeforeAreNodesOfTheirOwn) {
  const auto nothing = objc::block<void()>([] {});
  send<void, "transitionWithView:duration:options:animations:completion:">(
      cls("UIView"), view.get(), 0.4, 5UL << 20 | linear, nothing.get(),
      objc::Block<void(bool)>(nullptr));
  advance(0.1);
  const auto scene = now();
  EXPECT_EQ(scene.at(nameOf(view)).before, nameOf(view) + "b");
  EXPECT_DOUBLE_EQ(scene.at(nameOf(view)).beforeOpacity, 0.75);
  EXPECT_TRUE(scene.contains(nameOf(view) + "b"));
}

TEST_F(FlatScenes, BecomeJson) {
  send<void, "setBackgroundColor:">(view.get(), color(1, 0.5, 0, 0.5));
  const auto json = wholeSceneJson(now());
  EXPECT_EQ(json.at("root"), "0");
  EXPECT_EQ(json.at("nodes").at(nameOf(view)).dump(),
            R"({"background":"#ff800080","bounds":[0,0,30,40],"children":[],"kind":"UIView",)"
            R"("transform":[1,0,0,1,10,20]})");
}

TEST_F(FlatScenes, TextsBecomeJson) {
  const auto label = make("UILabel", rect(0, 0, 100, 20));
  send<void, "setText:">(label.get(), string("Hi"));
  add(view, label);
  const auto content = wholeSceneJson(now()).at("nodes").at(nameOf(label)).at("content");
  EXPECT_EQ(content.at("type"), "text");
  EXPECT_EQ(content.at("lines").at(0).at("text"), "Hi");
  EXPECT_EQ(content.at("weight"), 400);
  EXPECT_EQ(content.at("color"), "#000000ff");
  EXPECT_EQ(content.at("alignment"), "left");
}

TEST_F(FlatScenes, ChangesBecomeJson) {
  const auto before = now();
  send<void, "removeFromSuperview">(view.get());
  const auto json = changesJson(changesBetween(before, now()));
  EXPECT_EQ(json.at("gone").dump(), "[\"" + std::to_string(drawn(view).id) + "\"]");
  EXPECT_EQ(json.at("nodes").size(), 1U);
}

}  // namespace
}  // namespace sim
