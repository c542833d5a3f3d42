// Lists of specifiers: what is read, and what is said of those that are wrong.
#include <gtest/gtest.h>

#include <fstream>
#include <string>

#include "simulator/host/TemporaryFolder.h"
#include "simulator/preferences/Specifier.h"

namespace sim {
namespace {

std::string dictionary(const std::string& inside) {
  return "<dict>" + inside + "</dict>";
}
std::string pair(const std::string& key, const std::string& value) {
  return "<key>" + key + "</key>" + value;
}
std::string pairOfStrings(const std::string& key, const std::string& value) {
  return pair(key, "<string>" + value + "</string>");
}
std::string listWith(const std::string& item) {
  return dictionary(pair("items", "<array>" + dictionary(item) + "</array>"));
}

class Specifiers : public testing::Test {
 protected:
  SpecifierList read(const std::string& root) {
    std::ofstream(file()) << "<plist version=\"1.0\">" << root << "</plist>";
    return readSpecifierList(file());
  }
  // Without the file's name.
  std::string errorOf(const std::string& root) {
    try {
      read(root);
    } catch (const SpecifierError& error) {
      const std::string prefix = file().string() + ": ";
      const std::string message = error.what();
      EXPECT_TRUE(message.starts_with(prefix)) << message;
      return message.substr(prefix.size());
    }
    return "";
  }

  const std::string setting = pairOfStrings("label", "Wind") + pairOfStrings("key", "wind") +
                              pairOfStrings("defaults", "com.example.rain");

 private:
  std::filesystem::path file() const { return folder_.path() / "Rain.plist"; }
  TemporaryFolder folder_;
};

TEST_F(Specifiers, OfASwitchSayWhatIsStoredWhere) {
  const auto list =
      read(listWith(pairOfStrings("cell", "PSSwitchCell") + setting + pair("default", "<true/>") +
                    pairOfStrings("PostNotification", "com.example.rain/changed")));
  ASSERT_EQ(list.items.size(), 1u);
  const Specifier& item = list.items.front();
  EXPECT_EQ(item.cell, Cell::toggle);
  EXPECT_EQ(item.label, "Wind");
  EXPECT_EQ(item.key, "wind");
  EXPECT_EQ(item.domain, "com.example.rain");
  EXPECT_EQ(item.notification, "com.example.rain/changed");
  EXPECT_TRUE(std::get<bool>(item.standard));
  EXPECT_FALSE(list.entry);
}

TEST_F(Specifiers, OfAListKeepTheTypesOfItsValues) {
  const auto list =
      read(listWith(pairOfStrings("cell", "PSLinkListCell") + setting +
                    pair("validTitles", "<array><string>a</string><string>b</string></array>") +
                    pair("validValues", "<array><integer>-1</integer><real>1</real></array>")));
  const Specifier& item = list.items.at(0);
  EXPECT_EQ(item.titles, (std::vector<std::string>{"a", "b"}));
  EXPECT_EQ(std::get<long>(item.values.at(0)), -1);
  EXPECT_EQ(std::get<double>(item.values.at(1)), 1.0);
  EXPECT_TRUE(std::holds_alternative<NoValue>(item.standard));
}

TEST_F(Specifiers, OfAGroupNeedNoLabel) {
  const auto list = read(listWith(pairOfStrings("cell", "PSGroupCell")));
  EXPECT_EQ(list.items.at(0).cell, Cell::group);
}

TEST_F(Specifiers, NameWhatIsMissing) {
  EXPECT_EQ(errorOf(dictionary("")), "there is no items");
  EXPECT_EQ(errorOf(listWith("")), "items[0]: there is no cell");
  EXPECT_EQ(errorOf(listWith(pairOfStrings("cell", "PSSwitchCell"))),
            "items[0]: there is no label");
  EXPECT_EQ(errorOf(listWith(pairOfStrings("cell", "PSSwitchCell") + pairOfStrings("label", "a"))),
            "items[0]: there is no key");
  EXPECT_EQ(errorOf(listWith(pairOfStrings("cell", "PSLinkListCell") + setting)),
            "items[0]: there is no validTitles");
  EXPECT_EQ(errorOf(dictionary(pair("entry", dictionary("")))), "entry: there is no cell");
}

TEST_F(Specifiers, NameWhatIsOfAnotherKind) {
  EXPECT_EQ(errorOf("<array/>"), "expected a dictionary");
  EXPECT_EQ(errorOf(dictionary(pair("items", "<true/>"))), "items: expected an array");
  EXPECT_EQ(errorOf(listWith(pair("cell", "<integer>1</integer>"))),
            "items[0].cell: expected a string");
  EXPECT_EQ(errorOf(listWith(pairOfStrings("cell", "PSSwitchCell") + setting +
                             pair("default", "<array/>"))),
            "items[0].default: expected a boolean, a number, a string or data");
  EXPECT_EQ(errorOf(dictionary(pair("entry", dictionary(pairOfStrings("cell", "PSButtonCell"))))),
            "entry.cell: expected PSLinkCell, found PSButtonCell");
}

TEST_F(Specifiers, NameCellsThatAreNotDrawn) {
  EXPECT_EQ(errorOf(listWith(pairOfStrings("cell", "PSSliderCell"))),
            "items[0].cell: this Settings application has no PSSliderCell");
}

TEST_F(Specifiers, CountTheValuesOfAList) {
  EXPECT_EQ(errorOf(listWith(pairOfStrings("cell", "PSLinkListCell") + setting +
                             pair("validTitles", "<array><string>a</string></array>") +
                             pair("validValues", "<array/>"))),
            "items[0].validValues: expected 1, as many as there are titles, found 0");
}

TEST_F(Specifiers, OfNoFileSayItsName) {
  EXPECT_THROW(readSpecifierList("/nowhere/Rain.plist"), SpecifierError);
}

TEST(SettingsValues, AreEqualAsNumbersAndAsTexts) {
  EXPECT_TRUE(areEqual(15L, 15.0));
  EXPECT_TRUE(areEqual(true, 1L));
  EXPECT_FALSE(areEqual(15L, 15.5));
  EXPECT_TRUE(areEqual(std::string("a"), std::string("a")));
  EXPECT_FALSE(areEqual(std::string("1"), 1L));
  EXPECT_FALSE(areEqual(NoValue(), NoValue()));
}

}  // namespace
}  // namespace sim
