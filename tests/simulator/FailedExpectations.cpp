// Every expectation can fail, and says what was expected and what was found.
#include <gtest/gtest.h>

#include "tests/simulator/RunProgram.h"

namespace sim {
namespace {

struct Failure {
  std::string name;
  std::string line;     // after boot
  std::string message;  // column and text
};

class FailedExpectation : public testing::TestWithParam<Failure> {};

TEST_P(FailedExpectation, SaysWhatWasFound) {
  const Outcome outcome = play("boot\n" + GetParam().line);
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.errors.substr(0, outcome.errors.find('\n')), "SCRIPT:2:" + GetParam().message);
}

void PrintTo(const Failure& test, std::ostream* stream) {
  *stream << test.name;
}

std::string named(const testing::TestParamInfo<Failure>& test) {
  return test.param.name;
}

const std::string launch = "\"-[SpringBoard applicationDidFinishLaunching:]\"";

INSTANTIATE_TEST_SUITE_P(
    Values, FailedExpectation,
    testing::Values(Failure{"Number", "expect Sample.new.count 3",
                            "25: Sample.new.count: expected 3, found 0"},
                    Failure{"Tolerance", "expect Sample.new.count 1 within 0.5",
                            "25: Sample.new.count: expected 1 within 0.5, found 0"},
                    Failure{"Boolean", "expect Sample.new.isOn YES",
                            "24: Sample.new.isOn: expected YES, found NO"},
                    Failure{"BooleanIsNoNumber", "expect Sample.new.isOn 0",
                            "24: Sample.new.isOn: expected 0, found NO"},
                    Failure{"NumberIsNoBoolean", "expect Sample.new.count NO",
                            "25: Sample.new.count: expected NO, found 0"},
                    Failure{"Text", "expect Sample.new.cString \"x\"",
                            R"(27: Sample.new.cString: expected "x", found "a \"C\" string")"},
                    Failure{"Nil", "expect Sample.shared nil",
                            "22: Sample.shared: expected nil, found <Sample>"},
                    Failure{"NotNil", "expect Sample.new.title \"x\"",
                            "25: Sample.new.title: expected \"x\", found nil"},
                    Failure{"ZeroIsNotNil", "expect Sample.new.count nil",
                            "25: Sample.new.count: expected nil, found 0"},
                    Failure{"Identity", "expect Sample.shared Sample.new",
                            "22: Sample.shared: expected Sample.new, found <Sample>"},
                    Failure{"Not", "expect-not Sample.new.count 0",
                            "29: Sample.new.count: expected anything but 0, found it"},
                    Failure{"Variable", "expect-variable sampleRatio d 0.2",
                            "31: sampleRatio: expected 0.2, found 0.1"},
                    Failure{"Last", "expect-last 0",
                            "1: there is no last value: send, call or get comes first"}),
    named);

INSTANTIATE_TEST_SUITE_P(
    Journal, FailedExpectation,
    testing::Values(Failure{"Absent", "expect-journal \"nope\"",
                            "16: expected in the journal \"nope\", found no such line"},
                    Failure{"Time", "expect-journal " + launch + " at 1",
                            "16: expected in the journal " + launch + " at 1, found it at 0"},
                    Failure{"TimePrecision", "expect-journal " + launch + " at 0.001",
                            "16: expected in the journal " + launch + " at 0.001, found it at 0"},
                    Failure{"Times", "expect-journal " + launch + " times 2",
                            "16: expected in the journal " + launch + ", 2 times, found it at 0"},
                    Failure{"Never", "expect-no-journal \"*Finish*\"",
                            "19: expected nowhere in the journal \"*Finish*\", found it at 0"},
                    Failure{"Order", "expect-journal-order " + launch + " " + launch,
                            "70: expected in the journal, after the lines before it, " + launch +
                                ", found it at 0"}),
    named);

INSTANTIATE_TEST_SUITE_P(
    Reflection, FailedExpectation,
    testing::Values(Failure{"Class", "expect-class Nope", "14: there is no class Nope"},
                    Failure{"Superclass", "expect-class Sample NSString",
                            "21: the superclass of Sample: expected NSString, found NSObject"},
                    Failure{"NoClass", "expect-no-class Sample",
                            "17: expected no class Sample, found one"},
                    Failure{"Responds", "expect-responds Sample.new addLater NO",
                            "37: responds to addLater: expected NO, found YES"},
                    Failure{"Type", "expect-type Sample sameInt: \"v@:i\"",
                            "29: the type of sameInt:: expected \"v@:i\", found \"i@:i\""},
                    Failure{"TypeOfClassMethod", "expect-type Sample +addLater \"v@:\"",
                            "20: Sample does not answer +addLater"},
                    Failure{"Property", "expect-property Sample count \"Ti,N\"",
                            "30: the property count: expected \"Ti,N\", found \"Tq,N\""},
                    Failure{"NoProperty", "expect-property Sample nope \"Ti,N\"",
                            "24: Sample has no property nope"}),
    named);

INSTANTIATE_TEST_SUITE_P(
    LiveObjects, FailedExpectation,
    testing::Values(Failure{"Live", "expect-live UISlider 1",
                            "1: live objects of UISlider: expected 1, found 0"},
                    Failure{"LiveOfNoClass", "expect-live Nope 1", "13: there is no class Nope"},
                    Failure{"NoMark", "expect-no-new-objects", "1: mark-objects comes first"}),
    named);

TEST(LiveObjects, NewOnesAreFoundByTheirClass) {
  const Outcome outcome = play("boot\nmark-objects\nlet kept UISlider new\nexpect-no-new-objects");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_NE(outcome.errors.find("SCRIPT:4:1: expected no new objects, found"), std::string::npos)
      << outcome.errors;
  EXPECT_NE(outcome.errors.find(" 1 of UISlider"), std::string::npos) << outcome.errors;
}

TEST(LiveObjects, TheLastValueIsNone) {
  EXPECT_EQ(play("boot\nmark-objects\nsend UISlider new\nexpect-no-new-objects").status, 0);
}

}  // namespace
}  // namespace sim
