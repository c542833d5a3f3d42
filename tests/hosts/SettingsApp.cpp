#include "simulator/cephei/SettingsApp.h"

#include <fstream>

#include "tests/hosts/TestPreferences.h"

namespace sim {
namespace {

using SettingsAppTest = TestPreferences;

TEST_F(SettingsAppTest, EveryTypeArrives) {
  writeSetting(file(), "yes", true);
  writeSetting(file(), "no", false);
  writeSetting(file(), "integer", 12L);
  writeSetting(file(), "negative", -12L);
  writeSetting(file(), "real", 0.1);
  writeSetting(file(), "text",
               std::string("\xC3\xBC"
                           "ber"));
  writeSetting(file(), "data", std::vector<char>{0, 1, 2});
  boot();
  EXPECT_EQ(notation(storedValue("yes")), "YES");
  EXPECT_EQ(notation(storedValue("no")), "NO");
  EXPECT_EQ(notation(storedValue("integer")), "12");
  EXPECT_EQ(notation(storedValue("negative")), "-12");
  EXPECT_EQ(notation(storedValue("real")), "0.1");
  EXPECT_EQ(text(storedValue("text")),
            "\xC3\xBC"
            "ber");
  EXPECT_EQ((objc::send<unsigned long, "length">(storedValue("data"))), 3U);
}

TEST_F(SettingsAppTest, OtherKeysStayAsTheyAre) {
  writeSetting(file(), "one", 1L);
  writeSetting(file(), "two", 2L);
  writeSetting(file(), "one", NoValue());
  writeSetting(file(), "never there", NoValue());
  boot();
  EXPECT_FALSE(storedValue("one"));
  EXPECT_EQ(notation(storedValue("two")), "2");
}

TEST_F(SettingsAppTest, AnUnreadableFileIsSetAside) {
  std::filesystem::create_directories(file().parent_path());
  std::ofstream(file()) << "<plist version=\"1.0\"><array/></plist>";
  testing::internal::CaptureStderr();
  writeSetting(file(), "one", 1L);
  const std::string message = testing::internal::GetCapturedStderr();
  EXPECT_NE(message.find(file().string()), std::string::npos) << message;
  EXPECT_TRUE(std::filesystem::exists(file().string() + ".corrupt"));
  boot();
  EXPECT_EQ(notation(storedValue("one")), "1");
}

TEST_F(SettingsAppTest, ALinkToItselfIsSetAside) {
  std::filesystem::create_directories(file().parent_path());
  std::filesystem::create_symlink(file(), file());
  writeSetting(file(), "one", 1L);
  EXPECT_TRUE(std::filesystem::is_symlink(file().string() + ".corrupt"));
  boot();
  EXPECT_EQ(notation(storedValue("one")), "1");
}

TEST_F(SettingsAppTest, AFileThatCannotBeWrittenIsAnError) {
  // A file is where its folder would be.
  const auto folder = file().parent_path();
  std::filesystem::create_directories(folder.parent_path());
  std::ofstream(folder) << "no folder";
  EXPECT_THROW(writeSetting(file(), "one", 1L), std::runtime_error);
}

TEST_F(SettingsAppTest, AFolderInPlaceOfTheFileIsKeptAside) {
  std::filesystem::create_directories(file() / "inside");
  writeSetting(file(), "one", 1L);
  EXPECT_TRUE(std::filesystem::is_regular_file(file()));
  EXPECT_TRUE(std::filesystem::is_directory(file().string() + ".corrupt/inside"));
}

}  // namespace
}  // namespace sim
