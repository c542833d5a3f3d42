// A script with a misspelt name would test nothing: it is told so, with the nearest name.
#include <gtest/gtest.h>

#include "tests/simulator/RunProgram.h"

namespace sim {
namespace {

struct Slip {
  std::string name;
  std::string script;
  std::string message;  // the first line on stderr, behind "SCRIPT:"
};

void PrintTo(const Slip& test, std::ostream* stream) {
  *stream << test.name;
}

std::string named(const testing::TestParamInfo<Slip>& test) {
  return test.param.name;
}

std::string firstLine(const std::string& text) {
  return text.substr(0, text.find('\n'));
}

#define MISSPELT_NAMES(suite, name, ...) \
  INSTANTIATE_TEST_SUITE_P(name, suite, testing::Values(__VA_ARGS__), named)

class Misspelt : public testing::TestWithParam<Slip> {};

TEST_P(Misspelt, IsAnErrorWithTheNearestName) {
  const Outcome outcome = play(GetParam().script);
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(firstLine(outcome.errors), "SCRIPT:" + GetParam().message);
}

MISSPELT_NAMES(
    Misspelt, Missing,
    Slip{"Class", "ios 15.4\nmissing DNDModeAsertionService\nboot",
         "2:9: there is no class DNDModeAsertionService to leave out; did you mean "
         "\"DNDModeAssertionService\"?"},
    Slip{"Selector", "missing SBMediaController puase\nboot",
         "1:27: SBMediaController itself has no method or property puase to leave out; did you "
         "mean \"pause\"?"},
    Slip{"InheritedSelector", "missing UILabel setFrame:\nboot",
         "1:17: UILabel itself has no method or property setFrame: to leave out"},
    Slip{"ClassOfAnExtension", "missing Sample\nboot",
         "1:9: there is no class Sample to leave out"},
    Slip{"ClassOfASelector", "missing SBMediaControler pause\nboot",
         "1:9: there is no class SBMediaControler to leave out; did you mean "
         "\"SBMediaController\"?"});

MISSPELT_NAMES(
    Misspelt, Trace,
    Slip{"Class", "trace UIVeiw setFrame:\nboot",
         "1:7: there is no class UIVeiw; did you mean \"UIView\"?"},
    Slip{"Selector", "trace UIView setFrane:\nboot",
         "1:14: there is no method -[UIView setFrane:] to trace; did you mean \"setFrame:\"?"},
    Slip{"InheritedSelector", "trace UILabel setFrane:\nboot",
         "1:15: there is no method -[UILabel setFrane:] to trace; did you mean \"setFrame:\"?"},
    Slip{"ClassMethod", "trace NSNotificationCenter +defaultCentre\nboot",
         "1:28: there is no method +[NSNotificationCenter defaultCentre] to trace; did you mean "
         "\"defaultCenter\"?"},
    Slip{"LeftOut", "missing SBVolumeControl\ntrace SBVolumeControl volumes\nboot",
         "2:7: this phone lacks the class SBVolumeControl"});

MISSPELT_NAMES(Misspelt, Locale,
               Slip{"Region", "locale de_DF",
                    "1:8: there is no locale de_DF; did you mean \"de_DE\"?"},
               Slip{"Case", "locale ar_sA",
                    "1:8: there is no locale ar_sA; did you mean \"ar_SA\"?"},
               Slip{"Far", "locale somewhere", "1:8: there is no locale somewhere"});

MISSPELT_NAMES(
    Misspelt, Settings,
    Slip{"OfARunningHost",
         "boot\npreferences-domain com.example\n"
         "let preferences HBPreferences preferencesForIdentifier: \"com.example\"\n"
         "send $preferences boolForKey: \"length\"\nset length YES\nset lenght YES",
         "6:5: no extension reads the setting lenght of com.example; did you mean \"length\"?"});

MISSPELT_NAMES(
    Misspelt, Journal,
    Slip{"Class", "boot\nexpect-no-journal \"-[SBMediaControler pause]\"",
         "2:19: there is no class SBMediaControler; did you mean \"SBMediaController\"?"},
    Slip{"ClassWithAStar", "boot\nexpect-no-journal \"-[SBMedai*\"",
         "2:19: there is no class SBMedai*"},
    Slip{"Selector", "boot\nexpect-no-journal \"-[SBMediaController puase]\"",
         "2:19: there is no method -[SBMediaController puase]; did you mean \"pause\"?"},
    Slip{"FirstPart", "boot\nexpect-no-journal \"-[SBVolumeControl setVolum:*\"",
         "2:19: there is no method -[SBVolumeControl setVolum:]; did you mean \"setVolume:\"?"},
    Slip{"StartOfASelector", "boot\nexpect-no-journal \"-[SBVolumeControl setVolux*\"",
         "2:19: there is no method -[SBVolumeControl setVolux]"},
    Slip{"LaterPart", "boot\nexpect-no-journal \"-[SBVolumeControl setVolume:0.5 forCategry:*\"",
         "2:19: there is no method -[SBVolumeControl setVolume:forCategry:]"},
    Slip{"ClassMethod", "boot\nexpect-no-journal \"call +[UIView transitionWithVeiw:*\"",
         "2:19: there is no method +[UIView transitionWithVeiw:]; did you mean "
         "\"transitionWithView:\"?"},
    Slip{"AnyClass", "boot\nexpect-no-journal \"call -[* setFrane:*\"",
         "2:19: there is no method -[* setFrane:]; did you mean \"setFrame:\"?"},
    Slip{"Stub", "boot\nexpect-no-journal \"stub -[UIVeiw *\"",
         "2:19: there is no class UIVeiw; did you mean \"UIView\"?"},
    Slip{"Function", "boot\nexpect-no-journal \"AudioServicesPlaySystemSond(1519)\"",
         "2:19: there is no function AudioServicesPlaySystemSond; did you mean "
         "\"AudioServicesPlaySystemSound\"?"},
    Slip{"BeforeBoot", "expect-no-journal \"-[SBMediaController puase]\"\nboot",
         "1:19: there is no method -[SBMediaController puase]; did you mean \"pause\"?"},
    Slip{"Times", "boot\nexpect-journal \"-[SBMediaController puase]\" times 0",
         "2:16: there is no method -[SBMediaController puase]; did you mean \"pause\"?"},
    Slip{"Order", "boot\nexpect-journal-order \"-[SBMediaController puase]\"",
         "2:22: there is no method -[SBMediaController puase]; did you mean \"pause\"?"},
    Slip{"KillAt", "kill-at \"-[SBMediaController puase]\"\nboot",
         "1:9: there is no method -[SBMediaController puase]; did you mean \"pause\"?"},
    Slip{"AfterARestart",
         "boot\nrespring\nkill\nexpect-no-journal \"-[SBMediaController puase]\"\nrespring",
         "4:19: there is no method -[SBMediaController puase]; did you mean \"pause\"?"});

MISSPELT_NAMES(Misspelt, Absence,
               Slip{"Class", "boot\nexpect-no-class UIButtom",
                    "2:17: the class UIButtom is known nowhere; did you mean \"UIButton\"?"},
               Slip{"Selector", "boot\nexpect-responds Sample.new addLatre NO",
                    "2:28: the selector addLatre is known nowhere; did you mean \"addLater\"?"},
               Slip{"Argument", "boot\nsend Sample.new respondsToSelector: selector addLatre",
                    "2:46: the selector addLatre is known nowhere; did you mean \"addLater\"?"});

MISSPELT_NAMES(Misspelt, Targets,
               Slip{"Class", "boot\nget UIVeiw.new",
                    "2:5: there is no class UIVeiw; did you mean \"UIView\"?"},
               Slip{"Live", "boot\nexpect-live UIVeiw 0",
                    "2:13: there is no class UIVeiw; did you mean \"UIView\"?"},
               Slip{"Selector", "boot\nsend Sample.new addLatre",
                    "2:17: Sample does not answer addLatre; did you mean \"addLater\"?"});

// With the own extension, whose domain, keys and classes are known from it.
class MisspeltOfTheExtension : public testing::TestWithParam<Slip> {};

Outcome playWithOwnExtension(const std::string& script) {
  const std::string file = writeFile("own.phone", script);
  Outcome outcome = runSimulator("play --quiet '" + file + "'");
  if (outcome.errors.starts_with(file)) outcome.errors.replace(0, file.size(), "SCRIPT");
  return outcome;
}

TEST_P(MisspeltOfTheExtension, IsAnErrorWithTheNearestName) {
  const Outcome outcome = playWithOwnExtension(GetParam().script);
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(firstLine(outcome.errors), "SCRIPT:" + GetParam().message);
}

MISSPELT_NAMES(
    MisspeltOfTheExtension, Settings,
    Slip{"BeforeBoot", "set enabledMode 2\nboot",
         "1:5: no extension reads the setting enabledMode of com.corvane.dozewell2; did you mean "
         "\"enabledModes\"?"},
    Slip{"Removed", "boot\nset enabledMode none",
         "2:5: no extension reads the setting enabledMode of com.corvane.dozewell2; did you mean "
         "\"enabledModes\"?"},
    Slip{"TheEndOfAnother", "set nabledModes 2\nboot",
         "1:5: no extension reads the setting nabledModes of com.corvane.dozewell2; did you mean "
         "\"enabledModes\"?"},
    Slip{"WithoutItsBeginning", "boot\nset FadeOutEnabled NO",
         "2:5: no extension reads the setting FadeOutEnabled of com.corvane.dozewell2"},
    Slip{"OfACompanion", "set Enabled NO\nboot",
         "1:5: no extension reads the setting Enabled of com.corvane.dozewell2; did you mean "
         "\"enabled\"?"},
    Slip{"OutsideOfTheHomeScreen", "process Preferences\nset enabledMode 2\nboot",
         "2:5: no extension reads the setting enabledMode of com.corvane.dozewell2; did you mean "
         "\"enabledModes\"?"},
    Slip{"Domain", "preferences-domain com.corvane.dozewel2\nboot",
         "1:20: the domain com.corvane.dozewel2 is known nowhere; did you mean "
         "\"com.corvane.dozewell2\"?"},
    Slip{"UserDefault", "default \"com.corvane.dozewell2.persistedTimerDat\" none\nboot",
         "1:9: the user default com.corvane.dozewell2.persistedTimerDat is known nowhere; did you "
         "mean \"com.corvane.dozewell2.persistedTimerDate\"?"});

MISSPELT_NAMES(
    MisspeltOfTheExtension, Journal,
    Slip{"Notification", "boot\nexpect-no-journal \"post \\\"DozewellDidStratNotification\\\"\"",
         "2:19: the notification DozewellDidStratNotification is known nowhere; did you mean "
         "\"DozewellDidStartNotification\"?"},
    Slip{"Class", "boot\nexpect-no-journal \"call -[DozewelButton setActive:*\"",
         "2:19: there is no class DozewelButton; did you mean \"DozewellButton\"?"},
    Slip{"NoClass", "set enabled NO\nboot\nexpect-no-class DozewelButton",
         "3:17: the class DozewelButton is known nowhere; did you mean \"DozewellButton\"?"});

TEST(WellSpelt, WhatThePhoneLacksAndWhatIsSwitchedOffIsKnown) {
  const Outcome outcome = playWithOwnExtension(
      "missing SBMediaController pauseForEventSource:\n"
      "missing SBVolumeControl\n"
      "missing UIView isHidden\n"
      "missing PCSimpleTimer\n"
      "set enabled NO\n"
      "boot\n"
      "set timerDefaultValue none\n"
      "expect-no-class DozewellButton\n"
      "expect-no-class NoSuchClass\n"
      "expect-no-journal \"-[SBMediaController pauseForEventSource:*\"\n"
      "expect-no-journal \"-[SBVolumeControl setVolume:0.5 forCategory:\\\"Audio/Video\\\"]\"\n"
      "expect-no-journal \"-[PCSimpleTimer dealloc]\"\n"
      "expect-no-journal \"call -[UIView setHidden:YES]\"\n"
      "expect-no-journal \"call -[DozewellButton setMoonColor:*\"\n"
      "expect-no-journal \"call -[MRUNowPlayingHeaderView dozewellButton]\"\n");
  EXPECT_EQ(outcome.status, 0) << outcome.errors;
}

TEST(WellSpelt, TheJournalsOwnNotationIsKnown) {
  std::string script = "boot\n";
  for (
      const char* line :
      {R"(-[PCSimpleTimer fire] \"com.example\")",
       "-[PCSimpleTimer scheduleInRunLoop:]",
       "-[PCSimpleTimer invalidate]",
       R"(-[HBPreferences setObject:2 forKey:\"key\"]*)",
       R"(-[HBPreferences removeObjectForKey:\"a key: b\"]*)",
       "-[HBPreferences removeAllObjects]*",
       R"(-[DNDModeAssertionService takeModeAssertionWithDetails:\"a\" \"b\" nil])",
       "-[BBSettingsGateway setBehaviorOverrideStatus:1]",
       R"(-[RunwrightManager runWorkflowWithName:\"Good Night\"])",
       "-[CSTimerViewController setEndDate:2027-01-01 22:01:00 +0000]",
       "-[UIApplication openURL:shortcuts://create-shortcut]",
       R"(-[UIPasteboard setString:\"x\"])",
       "-[RadiosPreferences synchronize]",
       "-[RadiosPreferences setAirplaneMode:YES]",
       "-[BluetoothManager setEnabled:NO]",
       R"(-[BluetoothManager disconnectDevicePhysicalLink:\"Headset\"])",
       "-[SBMediaController setSuppressHUD:NO]",
       "-[NSUserDefaults removeObjectForKey:*",
       "-[SBVolumeControl setVolume:1.5 forCategory:*",
       "MRMediaRemoteSendCommand(4)",
       "AudioServicesPlaySystemSound(1519)",
       "BKSTerminateApplicationForReasonAndReportWithDescription(*",
       R"(call -[NSNotificationCenter addObserver:<UIView> selector:selector changed: name:\"N\" object:nil])",
       "call -[* updatePackage]",
       "call *setActive*",
       "hook -[SpringBoard applicationDid*x",
       "*Runwright*",
       R"(post \"SomethingElse\")",
       "log *"})
    script += std::string("expect-no-journal \"") + line + "\"\n";
  const Outcome outcome = play(script);
  EXPECT_EQ(outcome.status, 0) << outcome.errors;
}

TEST(WellSpelt, SettingsOfAnotherProcessAreItsOwn) {
  const Outcome outcome = playWithOwnExtension(
      "preferences-domain com.example.other\nset anything 1\nboot\nset something 2\n");
  EXPECT_EQ(outcome.status, 0) << outcome.errors;
}

TEST(MisspeltHooks, AreToldOnStandardError) {
  const Outcome outcome = play("missing SBBacklightController screenIsOn\nboot",
                               "--quiet --tweak '" MISSPELT_HOOKS "'");
  EXPECT_EQ(outcome.status, 0) << "a phone leaves them out in silence";
  EXPECT_EQ(outcome.errors,
            "an extension looks for the class SBMediaControler, which no phone has; did you mean "
            "\"SBMediaController\"?\n"
            "an extension hooks -[SBMediaController puase], which no phone has; did you mean "
            "\"pause\"?\n");
}

TEST(MisspeltHooks, TheOwnExtensionHasNone) {
  for (const char* setup : {"", "set enabled NO\n", "process Preferences\n"}) {
    const Outcome outcome = playWithOwnExtension(std::string(setup) + "boot\n");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.errors, "");
  }
}

}  // namespace
}  // namespace sim
