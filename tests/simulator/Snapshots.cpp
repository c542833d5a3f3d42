// Drawing the screen into files, and comparing it with files that were kept.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>

#include "tests/simulator/RunProgram.h"

namespace sim {
namespace {

constexpr const char* redSquare = R"(boot
let square UIView.new
send $square setFrame: {{10, 20}, {30, 40}}
send $square setBackgroundColor: UIColor.redColor
send UIApplication.sharedApplication.keyWindow addSubview: $square
)";

std::string contents(const std::string& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

// A variable of the environment, for a while.
class Variable {
 public:
  Variable(const char* name, const char* value) : name_(name) {
    if (const char* old = std::getenv(name)) before_ = old;
    setenv(name, value, 1);
  }
  ~Variable() { before_ ? setenv(name_, before_->c_str(), 1) : unsetenv(name_); }
  Variable(const Variable&) = delete;
  Variable& operator=(const Variable&) = delete;

 private:
  const char* name_;
  std::optional<std::string> before_;
};

// Files lie beside the script.
std::string besideTheScript(const std::string& name) {
  return (std::filesystem::path(writeFile("marker", "")).parent_path() / name).string();
}

TEST(Snapshots, AreWrittenBesideTheScript) {
  const std::string file = besideTheScript("screen.svg");
  const Outcome outcome = play(std::string(redSquare) + "snapshot screen.svg");
  EXPECT_EQ(outcome.status, 0) << outcome.errors;
  EXPECT_NE(contents(file).find("<g class=\"UIView\" transform=\"translate(10 20)\">\n"
                                "        <rect width=\"30\" height=\"40\" fill=\"#ff0000\"/>"),
            std::string::npos)
      << contents(file);
}

TEST(Snapshots, AreTheSameOnEveryRun) {
  const std::string one = besideTheScript("one.svg"), other = besideTheScript("other.svg");
  play(std::string(redSquare) + "snapshot one.svg");
  play(std::string(redSquare) + "snapshot other.svg");
  EXPECT_FALSE(contents(one).empty());
  EXPECT_EQ(contents(one), contents(other));
}

TEST(Snapshots, BecomePictures) {
  const std::string file = besideTheScript("screen.png");
  const Outcome outcome = play(std::string(redSquare) + "snapshot screen.png");
  EXPECT_EQ(outcome.status, 0) << outcome.errors;
  // The size in the header: 1170 x 2532 pixels.
  EXPECT_EQ(contents(file).substr(0, 24),
            std::string("\x89PNG\r\n\x1A\n\0\0\0\rIHDR\0\0\x04\x92\0\0\x09\xE4", 24));
}

TEST(Snapshots, WithoutTheProgramThatDrawsPicturesSaySo) {
  const Variable path("PATH", "/nowhere");
  const Outcome outcome = play(std::string(redSquare) + "snapshot screen.png");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_NE(outcome.errors.find("rsvg-convert: is not installed"), std::string::npos)
      << outcome.errors;
}

TEST(Snapshots, AreOfTwoKinds) {
  const Outcome outcome = play("boot\nsnapshot screen.jpg");
  EXPECT_EQ(outcome.errors, "SCRIPT:2:10: expected a file, .svg or .png, found screen.jpg\n");
}

TEST(Snapshots, MayBeOfOneView) {
  const std::string file = besideTheScript("square.svg");
  const Outcome outcome = play(std::string(redSquare) + "snapshot square.svg $square");
  EXPECT_EQ(outcome.status, 0) << outcome.errors;
  EXPECT_NE(contents(file).find("width=\"30\" height=\"40\" viewBox=\"0 0 30 40\""),
            std::string::npos);
  EXPECT_EQ(play("boot\nsnapshot square.svg UIDevice.currentDevice").errors,
            "SCRIPT:2:21: UIDevice.currentDevice: expected a view, found UIDevice\n");
}

class References : public testing::Test {
 protected:
  // Writes the reference as the screen is.
  References() : file(besideTheScript("kept.svg")) {
    const Variable update("DOZEWELL_UPDATE_SNAPSHOTS", "1");
    play(script);
  }
  const std::string script = std::string(redSquare) + "expect-snapshot kept.svg";
  const std::string file;
};

TEST_F(References, ArePassedByTheSameScreen) {
  EXPECT_FALSE(contents(file).empty());
  const Outcome outcome = play(script);
  EXPECT_EQ(outcome.status, 0) << outcome.errors;
}

TEST_F(References, AreFailedByAnotherScreen) {
  std::string wrong = contents(file);
  const auto at = wrong.find("#ff0000");
  ASSERT_NE(at, std::string::npos);
  wrong.replace(at, 7, "#0000ff");
  writeFile("kept.svg", wrong);
  const Outcome outcome = play(script);
  EXPECT_EQ(outcome.status, 1);
  EXPECT_NE(outcome.errors.find("SCRIPT:6:17: what is drawn is not as in kept.svg: line "),
            std::string::npos)
      << outcome.errors;
  EXPECT_NE(outcome.errors.find("expected <rect width=\"30\" height=\"40\" fill=\"#0000ff\"/>, "
                                "found <rect width=\"30\" height=\"40\" fill=\"#ff0000\"/>; "
                                "all of it is in kept.actual.svg"),
            std::string::npos)
      << outcome.errors;
  EXPECT_EQ(contents(file), wrong) << "what was kept is overwritten only when asked for";
  EXPECT_NE(contents(besideTheScript("kept.actual.svg")).find("#ff0000"), std::string::npos);
}

TEST_F(References, MustExist) {
  std::filesystem::remove(file);
  const Outcome outcome = play(script);
  EXPECT_EQ(outcome.status, 1);
  EXPECT_NE(outcome.errors.find("with DOZEWELL_UPDATE_SNAPSHOTS=1 in the environment"),
            std::string::npos)
      << outcome.errors;
}

}  // namespace
}  // namespace sim
