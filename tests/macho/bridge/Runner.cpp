// Runs the tests that are in the slice, when a script asks for what failed.
#include <gtest/gtest.h>

#include <cstddef>
#include <cstdio>
#include <string>

// Of the library itself no slice has anything: here is what the tests need of its texts.
template class std::basic_string<char>;

extern "C" {
// "" when tests were run and nothing did; else the place of each failure.
[[gnu::visibility("default")]] const char* failures();
}

namespace {

constexpr std::size_t mostTests = 600;

void (*tests[mostTests])();
std::size_t testCount;
char text[4000];
std::size_t textLength;
bool stopped;

void note(const char* file, int line) {
  const char* name = std::strrchr(file, '/');
  const int length = std::snprintf(text + textLength, sizeof text - textLength, "%s:%d ",
                                   name != nullptr ? name + 1 : file, line);
  if (length > 0 && textLength + std::size_t(length) < sizeof text)
    textLength += std::size_t(length);
}

}  // namespace

namespace testing {

Failure::Failure(const char* file, int line, bool isFatal) {
  note(file, line);
  stopped = stopped || isFatal;
}

Skipped::Skipped() {
  stopped = true;
}

void addTest(void (*run)()) {
  if (testCount == mostTests)
    note("too many tests", 0);
  else
    tests[testCount++] = run;
}

void beginTest() {
  stopped = false;
}

bool goesOn() {
  return !stopped;
}

}  // namespace testing

const char* failures() {
  std::size_t runToTheirEnd = 0;
  for (std::size_t index = 0; index < testCount; ++index) {
    tests[index]();
    runToTheirEnd += stopped ? 0 : 1;
  }
  if (runToTheirEnd == 0) note("no test was run to its end", 0);
  testCount = 0;
  return text;
}
