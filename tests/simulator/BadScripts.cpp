// What a script's author is told: for each mistake the place, what was expected and what was found.
#include <gtest/gtest.h>

#include "tests/simulator/RunProgram.h"

namespace sim {
namespace {

struct Mistake {
  std::string name;
  std::string script;
  std::string message;  // the first line on stderr
};

class BadScript : public testing::TestWithParam<Mistake> {};

TEST_P(BadScript, IsToldItsMistake) {
  const Outcome outcome = play(GetParam().script);
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.errors.substr(0, outcome.errors.find('\n')), GetParam().message);
}

void PrintTo(const Mistake& test, std::ostream* stream) {
  *stream << test.name;
}

std::string named(const testing::TestParamInfo<Mistake>& test) {
  return test.param.name;
}

#define TABLE(name, ...) \
  INSTANTIATE_TEST_SUITE_P(name, BadScript, testing::Values(__VA_ARGS__), named)

TABLE(Lines, Mistake{"Unknown", "boot\n  bot", "SCRIPT:2:3: expected a command, found bot"},
      Mistake{"FoundBeforeAnythingRuns", "get X\nbot", "SCRIPT:2:1: expected a command, found bot"},
      Mistake{"Quote", "locale \"a", "SCRIPT:1:8: expected a closing quote"},
      Mistake{"TooMany", "boot now", "SCRIPT:1:6: nothing may follow here, found now"},
      Mistake{"TooFew", "boot\nadvance",
              "SCRIPT:2:8: expected a duration such as 250ms, 10s, 5m or 8h"},
      Mistake{"TooEarly", "advance 1s", "SCRIPT:1:1: advance belongs after boot"},
      Mistake{"TooLate", "boot\nios 15", "SCRIPT:2:1: ios belongs before boot"},
      Mistake{"NestedTooDeep",
              [] {
                std::string script = "boot\n";
                for (int depth = 0; depth < 7200; ++depth) script += "repeat 1 ";
                return script + "advance 1s";
              }(),
              "SCRIPT:2:901: expected at most 100 commands within each other"},
      Mistake{"BootTwice", "boot\nboot", "SCRIPT:2:1: boot belongs before boot"});

constexpr const char* beyondTime = "time goes no further than 100 years after the phone's start";

TABLE(EndOfTime, Mistake{"AtOnce", "boot\nadvance 1e9h", std::string("SCRIPT:2:1: ") + beyondTime},
      Mistake{"InTwoSteps", "boot\nadvance 1s\nadvance 876000h",
              std::string("SCRIPT:3:1: ") + beyondTime},
      Mistake{"To", "boot\nadvance-to 1e300", std::string("SCRIPT:2:1: ") + beyondTime},
      Mistake{"Respring", "boot\nrespring after 1e300h", std::string("SCRIPT:2:1: ") + beyondTime});

TABLE(Setup, Mistake{"Version", "ios x", "SCRIPT:1:5: expected a version such as 15.4, found x"},
      Mistake{"VersionDots", "ios 15..4",
              "SCRIPT:1:5: expected a version such as 15.4, found 15..4"},
      Mistake{"Locale", "locale \"\"", "SCRIPT:1:8: expected a locale such as en_US, found "},
      Mistake{"MissingFoundation", "missing NSArray",
              "SCRIPT:1:9: the phone itself cannot do without NSArray"},
      Mistake{"MissingTouch", "missing UITouch\nboot",
              "SCRIPT:1:9: the phone itself cannot do without UITouch"},
      Mistake{"File", "file a b", "SCRIPT:1:6: expected an absolute path, found a"},
      Mistake{"Encoding", "declare f \"vz\"",
              "SCRIPT:1:11: the encoding \"vz\" has a type that no method passes by value: z"});

TABLE(Blocks,
      Mistake{"Name", "boot\nsend Sample.new setTitle: block",
              "SCRIPT:2:32: expected a name for the block"},
      Mistake{"Encoding", "boot\nsend Sample.new setTitle: block done \"v[\"",
              "SCRIPT:2:38: the encoding \"v[\" has a type that no method passes by value: ["},
      Mistake{"Traced", "trace NSObject +noSuchMethod\nboot",
              "SCRIPT:1:16: there is no method +[NSObject noSuchMethod] to trace"});

TABLE(Targets, Mistake{"Class", "boot\nget NoClass.x", "SCRIPT:2:5: there is no class NoClass"},
      Mistake{"Variable", "boot\nget $x", "SCRIPT:2:5: there is no variable $x"},
      Mistake{"Key", "boot\nget Sample.shared.nokey.x",
              "SCRIPT:2:19: Sample does not answer nokey"},
      Mistake{"Nil", "boot\nget Sample.new.title.length",
              "SCRIPT:2:22: expected an object to ask for length, found nil"},
      Mistake{"Number", "boot\nget Sample.new.count.x",
              "SCRIPT:2:22: expected an object to ask for x, found 0"},
      Mistake{"Dot", "boot\nget Sample.", "SCRIPT:2:12: expected a name after the dot"},
      Mistake{"Index", "boot\nget NSArray.new.3",
              "SCRIPT:2:17: expected an index below 0, found 3"},
      Mistake{"Text", "boot\nget \"x\"",
              "SCRIPT:2:5: expected a class or a $variable, found a string"},
      Mistake{"Name", "boot\nlet $x Sample",
              "SCRIPT:2:5: expected a name without $ and dots, found $x"});

TABLE(Sends,
      Mistake{"Unknown", "boot\nsend Sample.new nope: 1",
              "SCRIPT:2:17: Sample does not answer nope:"},
      Mistake{"NilReceiver", "boot\nsend Sample.new.title length",
              "SCRIPT:2:6: Sample.new.title: expected an object, found nil"},
      Mistake{"Missing", "boot\nsend Sample.new sum:b:c:d:e:f: 1 2",
              "SCRIPT:2:35: expected argument 3"},
      Mistake{"More", "boot\nsend Sample.new sameInt: 1 2",
              "SCRIPT:2:28: nothing may follow here, found 2"},
      Mistake{"Background", "boot\nbackground get Sample", "SCRIPT:2:12: expected send"});

// What does not fit each type of argument.
Mistake argument(const std::string& name, const std::string& selector, const std::string& value,
                 const std::string& expected) {
  return {name, "boot\nsend Sample.new " + selector + ": " + value,
          "SCRIPT:2:" + std::to_string(19 + selector.size()) + ": expected " + expected +
              ", found " + value};
}

TABLE(Arguments, argument("Char", "sameChar", "128", "an integer that fits the type c"),
      argument("CharLow", "sameChar", "-129", "an integer that fits the type c"),
      argument("UnsignedChar", "sameUnsignedChar", "-1", "an integer that fits the type C"),
      argument("Short", "sameShort", "32768", "an integer that fits the type s"),
      argument("UnsignedShort", "sameUnsignedShort", "65536", "an integer that fits the type S"),
      argument("Int", "sameInt", "2147483648", "an integer that fits the type i"),
      argument("Fraction", "sameInt", "1.5", "an integer that fits the type i"),
      argument("UnsignedInt", "sameUnsignedInt", "4294967296", "an integer that fits the type I"),
      argument("Long", "sameLong", "9223372036854775808", "an integer that fits the type q"),
      argument("UnsignedLong", "sameUnsignedLong", "-1", "an integer that fits the type Q"),
      argument("Float", "sameFloat", "1e39", "a number"),
      argument("FloatText", "sameFloat", "\"1\"", "a number"),
      argument("Bool", "sameBool", "1", "YES or NO"),
      argument("Integer", "sameInt", "YES", "an integer that fits the type i"),
      argument("Class", "sameClass", "\"x\"", "a class"),
      argument("ClassObject", "sameClass", "Sample.new", "a class"),
      argument("Selector", "sameSelector", "3", "a selector"),
      argument("CString", "sameCString", "3", "a string or nil"),
      argument("Pointer", "samePointer", "3", "nil"),
      argument("Structure", "samePoint", "3", "a structure of 2 members"),
      argument("StructureSize", "samePoint", "{1, 2, 3}", "a structure of 2 members"),
      argument("ObjectStructure", "sameObject", "{1, 2}", "an object"),
      argument("NilNumber", "sameInt", "nil", "an integer that fits the type i"));

TABLE(Functions,
      Mistake{"Absent", "boot\ncall nope", "SCRIPT:2:6: no loaded extension exports nope"},
      Mistake{"Undeclared", "boot\ncall sampleSum 1 2",
              "SCRIPT:2:6: the types of sampleSum are not known: declare them"},
      Mistake{"Variable", "boot\nexpect-variable nope B YES",
              "SCRIPT:2:17: no loaded extension exports nope"},
      Mistake{"OfALibrary", "declare system \"i*\"\nboot\ncall system \"true\"",
              "SCRIPT:3:6: no loaded extension exports system"},
      Mistake{"OfTheProgram", "declare objc_getClass \"#*\"\nboot\ncall objc_getClass \"NSObject\"",
              "SCRIPT:3:6: no loaded extension exports objc_getClass"},
      Mistake{"VariableOfALibrary", "boot\nexpect-variable environ ^v nil",
              "SCRIPT:2:17: no loaded extension exports environ"},
      Mistake{"VariableAsFunction", "declare sampleFlag \"v\"\nboot\ncall sampleFlag",
              "SCRIPT:3:6: expected a function, sampleFlag is none"},
      Mistake{"FunctionAsVariable", "boot\nexpect-variable sampleSum i 3",
              "SCRIPT:2:17: expected a variable, sampleSum is none"},
      Mistake{"WiderVariable", "boot\nexpect-variable sampleFlag {Wide=dddddddddddddddd} 1",
              "SCRIPT:2:17: sampleFlag has fewer bytes than the type {Wide=dddddddddddddddd}"},
      Mistake{"VariableThatIsNoObject", "boot\nexpect-variable sampleRatio @ nil",
              "SCRIPT:2:29: sampleRatio holds no value of the type @"},
      Mistake{"VariableThatIsNoText", "boot\nexpect-variable sampleRatio * nil",
              "SCRIPT:2:29: sampleRatio holds no value of the type *"},
      Mistake{"VariableThatIsNoSelector", "boot\nexpect-variable sampleRatio : nil",
              "SCRIPT:2:29: sampleRatio holds no value of the type :"},
      Mistake{"VariableWithoutAnObjectInIt", "boot\nexpect-variable sampleRatio {A=@} {1}",
              "SCRIPT:2:29: sampleRatio holds no value of the type {A=@}"},
      Mistake{"OtherTypes", "declare timeFormatted \"v@\"",
              "SCRIPT:1:23: timeFormatted has the types \"@i\""},
      Mistake{"TypesOfBefore", "declare f \"v\"\ndeclare f \"v\"\ndeclare f \"vi\"",
              "SCRIPT:3:11: f has the types \"v\""},
      Mistake{"Type", "boot\nexpect-variable sampleFlag Bd YES",
              "SCRIPT:2:28: the encoding \"Bd\" is not one type"});

TABLE(Time,
      Mistake{"Backwards", "boot\nadvance 10s\nadvance-to 9",
              "SCRIPT:3:1: time only moves forward: it is 10 already"},
      Mistake{"Wall", "wall-clock 1h", "SCRIPT:1:12: expected +DURATION or -DURATION, found 1h"},
      Mistake{"WallAmount", "wall-clock +1",
              "SCRIPT:1:13: expected a duration such as 250ms, 10s, 5m or 8h, found 1"},
      Mistake{"KillAt", "boot\nkill-at 1",
              "SCRIPT:2:1: expected a number of journal lines above 1, found 1"},
      Mistake{"RespringBeforeBoot", "respring", "SCRIPT:1:1: respring belongs after boot"});

TABLE(Repeat,
      Mistake{"Times", "boot\nrepeat x advance 1s", "SCRIPT:2:8: expected how often, found x"},
      Mistake{"NoCommand", "boot\nrepeat 2", "SCRIPT:2:9: expected a command"},
      Mistake{"NothingAfterThen", "boot\nrepeat 2 advance 1s then",
              "SCRIPT:2:25: expected a command"},
      Mistake{"UnknownCommand", "boot\nrepeat 2 advance 1s then bot",
              "SCRIPT:2:26: expected a command, found bot"},
      Mistake{"MistakeWithin", "boot\nrepeat 2 advance 1s then advance soon",
              "SCRIPT:2:34: expected a duration such as 250ms, 10s, 5m or 8h, found soon"},
      Mistake{"TooLate", "boot\nrepeat 2 ios 15", "SCRIPT:2:10: ios belongs before boot"});

TABLE(ControlCenter,
      Mistake{"Word", "boot\ncontrol-center shut", "SCRIPT:2:16: expected open or close"},
      Mistake{"Closed", "boot\nget $header", "SCRIPT:2:5: there is no $header just now"},
      Mistake{"NoPlayer", "boot\nlock\nget $lockScreenHeader",
              "SCRIPT:3:5: there is no $lockScreenHeader just now"});

// A view of that class in the middle of the screen, then another line.
Mistake touching(const std::string& name, const std::string& view, const std::string& lines,
                 const std::string& message) {
  const std::string window = "UIApplication.sharedApplication.keyWindow";
  return {name,
          "boot\nlet v " + view + ".new\nsend $v setFrame: {{50, 300}, {300, 200}}\nsend " +
              window + " addSubview: $v\n" + lines,
          "SCRIPT:" + message};
}

TABLE(Touches,
      touching("Hidden", "UIButton", "send $v setHidden: YES\ntap $v",
               "6:1: the touch does not reach UIButton but SBHomeScreenView: UIButton is hidden"),
      touching("Disabled", "UIButton", "send $v setEnabled: NO\ntap $v",
               "6:1: UIButton is not enabled"),
      touching("NoControl", "UILabel", "send $v setUserInteractionEnabled: YES\ntap $v",
               "6:1: UILabel is no control, lies in none and takes no touches"),
      touching("TwoFingers", "UIButton", "touch began 100 400\ntap $v",
               "6:1: a finger is on the screen already"),
      touching("NoSlider", "UIView", "slide $v 1", "5:7: $v: expected a UISlider, found UIView"),
      touching("Slider", "UISlider", "send $v setEnabled: NO\nslide $v 1",
               "6:1: UISlider is not enabled"),
      touching("NoValue", "UISlider", "slide $v nan",
               "5:10: expected a value of the slider, found nan"),
      touching("Wheel", "UIDatePicker",
               "send $v setDatePickerMode: 3\nsend $v setEnabled: NO\npick $v 5m",
               "7:1: UIDatePicker is not enabled"),
      touching("CoveredWheel", "UIDatePicker",
               "send $v setDatePickerMode: 3\nlet b UIButton.new\nsend $b setFrame: {{0, 0}, {300, "
               "200}}\nsend $v addSubview: $b\npick $v 5m",
               "9:1: the touch is not for UIDatePicker but for UIButton"),
      touching("NoRow", "UIPickerView", "select $v 0",
               "5:1: the picker view has no row 0 in component 0"));

}  // namespace
}  // namespace sim
