#include "simulator/foundation/NSUserDefaults.h"

#include "simulator/foundation/PropertyList.h"
#include "simulator/script/Command.h"
#include "tests/foundation/FoundationTest.h"

namespace sim {
namespace {

using objc::Object;
using objc::send;

constexpr const char* file = "/var/mobile/Library/Preferences/com.apple.springboard.plist";

class NSUserDefaultsTest : public FoundationTest {
 protected:
  void TearDown() override {
    {  // what the single instance keeps would count as left behind
      const objc::AutoreleasePool pool;
      forget();
      NSUserDefaults::of(defaults()).registered = KeyTable();
    }
    std::filesystem::remove_all(phone.file("/var/mobile/Library/Preferences"));
    FoundationTest::TearDown();
  }

  // As if the process had started again.
  static void forget() {
    NSUserDefaults& state = NSUserDefaults::of(defaults());
    state.values = KeyTable();
    state.loaded = state.changed = false;
  }

  static Object defaults() { return send<Object, "standardUserDefaults">(cls("NSUserDefaults")); }
  static void set(Object value, const char* key) {
    send<void, "setObject:forKey:">(defaults(), value, string(key));
  }
  static void remove(const char* key) {
    send<void, "removeObjectForKey:">(defaults(), string(key));
  }
  static std::string value(const char* key) {
    return notation(send<Object, "objectForKey:">(defaults(), string(key)));
  }
  static bool synchronize() { return send<bool, "synchronize">(defaults()); }

  std::string stored(const char* key) {
    std::string problem;
    const Object all = readPropertyList(phone.file(file), &problem);
    return all ? notation(send<Object, "objectForKey:">(all, string(key))) : "no file";
  }

  static void run(std::vector<Word> words) {
    CommandTable table;
    addFoundationCommands(table);
    Arguments arguments(std::move(words), 99);
    table.find("default")->run(arguments);
  }
  static Word quoted(const char* text) { return {text, true, 5}; }
  static Word plain(const char* text) { return {text, false, 5}; }

  using Lines = std::vector<std::string>;
};

TEST_F(NSUserDefaultsTest, showChangesAtOnceAndWriteThemWhenSynchronised) {
  set(number(3L), "count");
  EXPECT_EQ(value("count"), "3");
  EXPECT_EQ(stored("count"), "no file");
  EXPECT_TRUE(synchronize());
  EXPECT_EQ(stored("count"), "3");
}

TEST_F(NSUserDefaultsTest, loseWhatWasNotSynchronised) {
  set(number(1L), "kept");
  synchronize();
  set(number(2L), "kept");
  set(number(2L), "lost");
  forget();
  EXPECT_EQ(value("kept"), "1");
  EXPECT_EQ(value("lost"), "nil");
}

TEST_F(NSUserDefaultsTest, areWrittenAtAnOrderlyEnd) {
  set(number(1L), "kept");
  saveChangedUserDefaults();
  EXPECT_EQ(stored("kept"), "1");
  EXPECT_EQ(journal(), Lines{"-[NSUserDefaults setObject:1 forKey:\"kept\"]"});
}

TEST_F(NSUserDefaultsTest, areJournalled) {
  set(date(820533660), "due");
  set(string("text"), "name");
  remove("due");
  remove("due");
  set(nullptr, "name");
  synchronize();
  EXPECT_EQ(
      journal(),
      (Lines{"-[NSUserDefaults setObject:2027-01-01 22:01:00 +0000 forKey:\"due\"]",
             "-[NSUserDefaults setObject:\"text\" forKey:\"name\"]",
             "-[NSUserDefaults removeObjectForKey:\"due\"]",
             "-[NSUserDefaults removeObjectForKey:\"name\"]", "-[NSUserDefaults synchronize]"}));
}

TEST_F(NSUserDefaultsTest, removalReachesTheFile) {
  set(number(1L), "gone");
  synchronize();
  remove("gone");
  synchronize();
  EXPECT_EQ(stored("gone"), "nil");
}

TEST_F(NSUserDefaultsTest, areNotWrittenAgainWithoutAChange) {
  set(number(1L), "a");
  synchronize();
  std::filesystem::remove(phone.file(file));
  synchronize();
  EXPECT_EQ(stored("a"), "no file");
}

TEST_F(NSUserDefaultsTest, convertNumbersAndStrings) {
  send<void, "setInteger:forKey:">(defaults(), -7L, string("integer"));
  send<void, "setBool:forKey:">(defaults(), true, string("bool"));
  send<void, "setDouble:forKey:">(defaults(), 0.5, string("double"));
  send<void, "setFloat:forKey:">(defaults(), 0.25f, string("float"));
  set(string("12"), "text");
  set(array({}), "list");
  EXPECT_EQ((send<long, "integerForKey:">(defaults(), string("integer"))), -7);
  EXPECT_EQ((send<long, "integerForKey:">(defaults(), string("text"))), 12);
  EXPECT_EQ((send<long, "integerForKey:">(defaults(), string("list"))), 0);
  EXPECT_EQ((send<long, "integerForKey:">(defaults(), string("missing"))), 0);
  EXPECT_TRUE((send<bool, "boolForKey:">(defaults(), string("bool"))));
  EXPECT_EQ((send<double, "doubleForKey:">(defaults(), string("double"))), 0.5);
  EXPECT_EQ((send<float, "floatForKey:">(defaults(), string("float"))), 0.25f);
  EXPECT_EQ(text(send<Object, "stringForKey:">(defaults(), string("integer"))), "-7");
  EXPECT_FALSE((send<Object, "stringForKey:">(defaults(), string("list"))));
  EXPECT_TRUE((send<Object, "arrayForKey:">(defaults(), string("list"))));
  EXPECT_FALSE((send<Object, "dictionaryForKey:">(defaults(), string("list"))));
  EXPECT_EQ(value("bool"), "YES");
}

TEST_F(NSUserDefaultsTest, fallBackToRegisteredValues) {
  send<void, "registerDefaults:">(defaults(), dictionary({{string("a"), number(1L)}}));
  EXPECT_EQ(value("a"), "1");
  set(number(2L), "a");
  EXPECT_EQ(value("a"), "2");
  remove("a");
  EXPECT_EQ(value("a"), "1");
  synchronize();
  EXPECT_EQ(stored("a"), "nil");
  EXPECT_EQ(notation(send<Object, "objectForKey:">(
                send<Object, "dictionaryRepresentation">(defaults()), string("a"))),
            "1");
}

TEST_F(NSUserDefaultsTest, storeCopies) {
  const Object list = send<Object, "array">(cls("NSMutableArray"));
  set(list, "list");
  send<void, "addObject:">(list, string("later"));
  const Object kept = send<Object, "objectForKey:">(defaults(), string("list"));
  EXPECT_EQ((send<unsigned long, "count">(kept)), 0u);
}

TEST_F(NSUserDefaultsTest, setAsideAFileThatCannotBeRead) {
  writeFile(file, "garbage");
  writeFile(std::string(file) + ".corrupt", "older");
  testing::internal::CaptureStderr();
  EXPECT_EQ(value("a"), "nil");
  const std::string message = testing::internal::GetCapturedStderr();
  EXPECT_NE(message.find("com.apple.springboard.plist: is no property list"), std::string::npos);
  set(number(1L), "a");
  synchronize();
  EXPECT_EQ(stored("a"), "1");
  EXPECT_EQ(readFile(std::string(file) + ".corrupt"), "older");
  EXPECT_EQ(readFile(std::string(file) + ".corrupt-2"), "garbage");
}

TEST_F(NSUserDefaultsTest, setAsideALinkToItself) {
  const auto link = phone.file(file);
  std::filesystem::create_directories(link.parent_path());
  std::filesystem::create_symlink(link, link);
  EXPECT_EQ(value("a"), "nil");
  set(number(1L), "a");
  synchronize();
  EXPECT_EQ(stored("a"), "1");
  EXPECT_TRUE(std::filesystem::is_symlink(link.string() + ".corrupt"));
}

TEST_F(NSUserDefaultsTest, reportAFileThatCannotBeWritten) {
  writeFile("/var/mobile/Library/Preferences", "a file where the folder should be");
  testing::internal::CaptureStderr();
  set(number(1L), "a");
  EXPECT_FALSE(synchronize());
  EXPECT_NE(testing::internal::GetCapturedStderr().find("com.apple.springboard.plist"),
            std::string::npos);
}

TEST_F(NSUserDefaultsTest, areSetByScripts) {
  run({quoted("text"), quoted("word")});
  run({quoted("integer"), plain("-3")});
  run({quoted("real"), plain("0.5")});
  run({quoted("yes"), plain("YES")});
  run({quoted("later"), plain("date"), plain("+60s")});
  run({quoted("earlier"), plain("date"), plain("-60s")});
  run({quoted("moment"), plain("date"), quoted("2027-01-01 22:01:00")});
  EXPECT_EQ(value("text"), "\"word\"");
  EXPECT_EQ(value("integer"), "-3");
  EXPECT_EQ(value("real"), "0.5");
  EXPECT_EQ(value("yes"), "YES");
  EXPECT_EQ(value("moment"), "2027-01-01 22:01:00 +0000");
  const auto distance = [](const char* key) {
    return send<double, "timeIntervalSinceNow">(
        send<Object, "objectForKey:">(defaults(), string(key)));
  };
  EXPECT_EQ(distance("later"), 60);
  EXPECT_EQ(distance("earlier"), -60);
  run({quoted("text"), plain("none")});
  EXPECT_EQ(value("text"), "nil");
  EXPECT_EQ(stored("text"), "nil");
  EXPECT_EQ(stored("integer"), "-3");
  EXPECT_EQ(journal(), Lines{});
}

TEST_F(NSUserDefaultsTest, setByScriptsLeaveOtherChangesUnwritten) {
  set(number(1L), "pending");
  run({quoted("a"), plain("1")});
  EXPECT_EQ(value("a"), "1");
  EXPECT_EQ(value("pending"), "1");
  EXPECT_EQ(stored("a"), "1");
  EXPECT_EQ(stored("pending"), "nil");
}

TEST_F(NSUserDefaultsTest, refuseScriptsWithoutAValue) {
  EXPECT_THROW(run({quoted("a")}), ScriptError);
  EXPECT_THROW(run({quoted("a"), plain("maybe")}), ScriptError);
  EXPECT_THROW(run({quoted("a"), plain("date"), plain("60s")}), ScriptError);
  EXPECT_THROW(run({quoted("a"), plain("date"), quoted("today")}), ScriptError);
  EXPECT_THROW(run({quoted("a"), plain("1"), plain("2")}), ScriptError);
}

using NSUserDefaultsDeathTest = NSUserDefaultsTest;

TEST_F(NSUserDefaultsDeathTest, stopForWhatIsNoPropertyList) {
  const auto plainObject = objc::adopt(Object(objc_alloc_init(cls("NSObject"))));
  EXPECT_DEATH(set(plainObject, "key"),
               "Attempt to insert non-property list object <NSObject.*key");
}

}  // namespace
}  // namespace sim
