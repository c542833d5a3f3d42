// Reading and writing a domain, and who is told.
#include <fstream>

#include "objc/Class.h"
#include "tests/hosts/TestPreferences.h"

namespace sim {
namespace {

class Preferences : public TestPreferences {
 protected:
  static bool boolFor(objc::Object preferences, const char* key) {
    return objc::send<bool, "boolForKey:">(preferences, string(key));
  }
};

TEST_F(Preferences, AnIdentifierHasOneObject) {
  boot();
  const auto first = open();
  EXPECT_EQ(first.get(), open().get());
  EXPECT_NE(first.get(), open("com.example.other").get());
  EXPECT_EQ((objc::send<objc::Object, "preferencesForIdentifier:">(objc_getClass("HBPreferences"),
                                                                   string(domain))),
            first.get());
  EXPECT_EQ(text(objc::send<objc::Object, "identifier">(first.get())), domain);
}

TEST_F(Preferences, WritesReachTheFileAtOnce) {
  boot();
  const auto preferences = open();
  objc::send<void, "setBool:forKey:">(preferences.get(), true, string("flag"));
  objc::send<void, "setInteger:forKey:">(preferences.get(), -3L, string("integer"));
  objc::send<void, "setDouble:forKey:">(preferences.get(), 0.25, string("real"));
  objc::send<void, "setObject:forKey:">(preferences.get(), string("Pillow"), string("name"));
  EXPECT_EQ(notation(storedValue("flag")), "YES");
  EXPECT_EQ(notation(storedValue("integer")), "-3");
  EXPECT_EQ(notation(storedValue("real")), "0.25");
  EXPECT_EQ(notation(storedValue("name")), "\"Pillow\"");
  objc::send<void, "removeObjectForKey:">(preferences.get(), string("name"));
  EXPECT_FALSE(storedValue("name"));
  objc::send<void, "removeAllObjects">(preferences.get());
  EXPECT_EQ((objc::send<unsigned long, "count">(contentOfFile())), 0U);
}

TEST_F(Preferences, WritesAreJournalled) {
  boot();
  const auto preferences = open();
  objc::send<void, "setBool:forKey:">(preferences.get(), true, string("onTimerEndsDND"));
  objc::send<void, "setObject:forKey:">(preferences.get(), string("x"), string("name"));
  objc::send<void, "removeObjectForKey:">(preferences.get(), string("name"));
  const std::string announced = "post \"HBPreferencesDidChangeNotification\"";
  const std::vector<std::string> expected = {
      "-[HBPreferences setBool:YES forKey:\"onTimerEndsDND\"]", announced,
      "-[HBPreferences setObject:\"x\" forKey:\"name\"]",       announced,
      "-[HBPreferences removeObjectForKey:\"name\"]",           announced};
  EXPECT_EQ(journal(), expected);
}

TEST_F(Preferences, TheRegisteredDefaultComesBeforeTheCallers) {
  boot();
  const auto preferences = open();
  const auto get = [&](long otherwise) {
    return objc::send<long, "integerForKey:default:">(preferences.get(), string("n"), otherwise);
  };
  EXPECT_EQ(get(3), 3);
  objc::send<void, "registerDefaults:">(preferences.get(), dictionary({{string("n"), number(5L)}}));
  EXPECT_EQ(get(3), 5);
  objc::send<void, "setInteger:forKey:">(preferences.get(), 8L, string("n"));
  EXPECT_EQ(get(3), 8);
  EXPECT_EQ((objc::send<double, "floatForKey:">(preferences.get(), string("n"))), 8);
  EXPECT_FALSE(boolFor(preferences.get(), "unknown"));
}

TEST_F(Preferences, TheDictionaryHoldsWhatIsStored) {
  writeSetting(file(), "stored", 1L);
  boot();
  const auto preferences = open();
  objc::send<void, "registerDefaults:">(preferences.get(),
                                        dictionary({{string("default"), number(5L)}}));
  const auto count = [](objc::Object each) { return objc::send<unsigned long, "count">(each); };
  const auto all = objc::send<objc::Object, "dictionaryRepresentation">(preferences.get());
  EXPECT_EQ(count(all), 1U);
  EXPECT_TRUE((objc::send<objc::Object, "objectForKey:">(all, string("stored"))));
  EXPECT_EQ(count(objc::send<objc::Object, "defaults">(preferences.get())), 1U);
}

TEST_F(Preferences, ChangesAreToldInTheLibrarysOrder) {
  boot();
  const auto preferences = open();
  static std::vector<std::string> told;
  static long length;
  objc::send<void, "registerInteger:default:forKey:">(preferences.get(), &length, 15L,
                                                      string("length"));
  struct ChangeListener : objc::Implementation<ChangeListener> {
    void didChange(objc::Object) { told.push_back("notification " + std::to_string(length)); }
  };
  objc::ClassBuilder<ChangeListener>("TestListener", "NSObject")
      .method<"didChange:", &ChangeListener::didChange>()
      .finish();
  const auto listener = ChangeListener::make();
  objc::send<void, "addObserver:selector:name:object:">(
      objc::send<objc::Object, "defaultCenter">(objc_getClass("NSNotificationCenter")),
      listener.get(), objc::selector<"didChange:">(), HBPreferencesDidChangeNotification,
      preferences.get());
  objc::send<void, "registerPreferenceChangeBlock:">(
      preferences.get(), objc::block<void()>([] { told.push_back("whole domain"); }).get());
  EXPECT_EQ(told, std::vector<std::string>{"whole domain"}) << "is told once at once";
  const auto watch = [&](const char* key) {
    objc::send<void, "registerPreferenceChangeBlockForKey:block:">(
        preferences.get(), string(key),
        objc::block<void(objc::Object, objc::Object)>([](objc::Object name, objc::Object value) {
          told.push_back("key " + text(name) + ' ' + notation(value));
        }).get());
  };
  watch("length");
  watch("other");
  told.clear();
  changeElsewhere("length", 40L);
  EXPECT_EQ(told, (std::vector<std::string>{"notification 40", "key length 40", "whole domain"}));
  told.clear();
  objc::send<void, "setInteger:forKey:">(preferences.get(), 40L, string("length"));
  EXPECT_EQ(told, (std::vector<std::string>{"notification 40", "whole domain"}));
}

TEST_F(Preferences, AnUnreadableFileIsSetAside) {
  std::filesystem::create_directories(file().parent_path());
  std::ofstream(file()) << "not a property list";
  boot();
  testing::internal::CaptureStderr();
  const auto preferences = open();
  const std::string message = testing::internal::GetCapturedStderr();
  EXPECT_NE(message.find(file().string()), std::string::npos) << message;
  EXPECT_FALSE(std::filesystem::exists(file()));
  EXPECT_TRUE(std::filesystem::exists(file().string() + ".corrupt"));
  objc::send<void, "setBool:forKey:">(preferences.get(), true, string("flag"));
  EXPECT_EQ(notation(storedValue("flag")), "YES");
}

TEST_F(Preferences, ALinkToItselfIsSetAside) {
  std::filesystem::create_directories(file().parent_path());
  std::filesystem::create_symlink(file(), file());
  boot();
  const auto preferences = open();
  EXPECT_TRUE(std::filesystem::is_symlink(file().string() + ".corrupt"));
  objc::send<void, "setBool:forKey:">(preferences.get(), true, string("flag"));
  EXPECT_EQ(notation(storedValue("flag")), "YES");
}

TEST_F(Preferences, TheLibraryMayBeMissing) {
  phone.setup.missingClasses.insert("HBPreferences");
  boot();
  EXPECT_FALSE(open());
  changeElsewhere("flag", true);
  EXPECT_EQ(notation(storedValue("flag")), "YES");
}

}  // namespace
}  // namespace sim
