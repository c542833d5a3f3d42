#include "simulator/foundation/NSDate.h"

#include <array>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <functional>

#include "simulator/foundation/Exception.h"
#include "simulator/foundation/Kind.h"
#include "simulator/foundation/Values.h"
#include "simulator/machine/NumberReader.h"
#include "simulator/machine/Phone.h"
#include "simulator/standin/StandIn.h"

namespace sim {
namespace {

using objc::Object;

constexpr double referenceSince1970 = 978307200;

double now() {
  return Phone::current().clock.wall();
}

Object makeAt(id cls, double reference) {
  objc::Strong<Object> made = makeOf(cls);
  NSDate::of(made.get()).reference = reference;
  return autorelease(std::move(made));
}

Object makeNow(id cls) {
  return makeAt(cls, now());
}
Object makeSinceNow(id cls, double interval) {
  return makeAt(cls, now() + interval);
}
Object makeSince1970(id cls, double interval) {
  return makeAt(cls, interval - referenceSince1970);
}
Object distantFuture(id cls) {
  return makeAt(cls, 63113904000);
}
Object distantPast(id cls) {
  return makeAt(cls, -63114076800);
}

double secondsOf(Object self) {
  return NSDate::of(self).reference;
}

double referenceOf(Object self, const char* selector, Object date) {
  if (const NSDate* state = stateOf<NSDate>(date)) return state->reference;
  raiseException("NSInvalidArgumentException",
                 methodName(self, selector) + ": " + (date ? "not a date" : "nil argument"));
}

Object init(Object self) {
  NSDate::of(self).reference = now();
  return self;
}
Object initWithReference(Object self, double interval) {
  NSDate::of(self).reference = interval;
  return self;
}
Object initSinceNow(Object self, double interval) {
  return initWithReference(self, now() + interval);
}

double timeIntervalSinceNow(Object self) {
  return secondsOf(self) - now();
}
double timeIntervalSince1970(Object self) {
  return secondsOf(self) + referenceSince1970;
}
double timeIntervalSinceDate(Object self, Object other) {
  if (!other) return secondsOf(self);  // as if measured from the reference date
  return secondsOf(self) - referenceOf(self, "timeIntervalSinceDate:", other);
}

Object dateByAddingTimeInterval(Object self, double interval) {
  return date(secondsOf(self) + interval);
}

long compare(Object self, Object other) {
  const double its = referenceOf(self, "compare:", other);
  return secondsOf(self) < its ? -1 : secondsOf(self) > its;
}
Object earlierDate(Object self, Object other) {
  return secondsOf(self) <= referenceOf(self, "earlierDate:", other) ? self : other;
}
Object laterDate(Object self, Object other) {
  return secondsOf(self) >= referenceOf(self, "laterDate:", other) ? self : other;
}
bool isEqual(Object self, Object other) {
  const NSDate* state = stateOf<NSDate>(other);
  return state != nullptr && state->reference == secondsOf(self);
}
unsigned long hash(Object self) {
  return std::hash<double>()(secondsOf(self));
}
Object describe(Object self) {
  return string(dateText(secondsOf(self)));
}

}  // namespace

std::string dateText(double secondsSinceReferenceDate) {
  using namespace std::chrono;
  const double whole = std::floor(secondsSinceReferenceDate + referenceSince1970);
  // Far outside what a calendar holds there is no date to print.
  if (!(std::abs(whole) < 9e11)) return "(a date out of range)";
  const sys_seconds moment{std::chrono::seconds(long(whole))};
  const auto day = floor<days>(moment);
  const year_month_day ymd(day);
  const hh_mm_ss time(moment - day);
  std::array<char, 64> text;
  std::snprintf(text.data(), text.size(), "%04d-%02u-%02u %02ld:%02ld:%02ld +0000", int(ymd.year()),
                unsigned(ymd.month()), unsigned(ymd.day()), long(time.hours().count()),
                long(time.minutes().count()), long(time.seconds().count()));
  return text.data();
}

// "2022-04-16 22:05:00", from the year to the seconds; nothing may follow.
static bool takeParts(std::string_view text, std::array<int, 6>& parts) {
  constexpr std::string_view separators = "-- ::";
  for (std::size_t i = 0; i < parts.size(); ++i) {
    const auto part = takeNumber<int>(text);
    if (!part || *part < 0) return false;
    parts[i] = *part;
    if (i == separators.size()) break;
    if (!text.starts_with(separators[i])) return false;
    text.remove_prefix(1);
  }
  return text.empty();
}

bool parseDate(std::string_view text, double& secondsSinceReferenceDate) {
  using namespace std::chrono;
  constexpr int latestYear = 9999;
  constexpr std::string_view offset = " +0000";
  if (text.ends_with(offset)) text.remove_suffix(offset.size());
  std::array<int, 6> parts = {};
  if (!takeParts(text, parts) || parts[0] > latestYear) return false;
  const year_month_day day{year(parts[0]), month(unsigned(parts[1])),
                           std::chrono::day(unsigned(parts[2]))};
  const bool inDay = parts[3] >= 0 && parts[3] < 24 && parts[4] >= 0 && parts[4] < 60 &&
                     parts[5] >= 0 && parts[5] < 60;
  if (!day.ok() || !inDay) return false;
  const auto since1970 = sys_days(day).time_since_epoch() + hours(parts[3]) + minutes(parts[4]) +
                         std::chrono::seconds(parts[5]);
  secondsSinceReferenceDate =
      double(duration_cast<std::chrono::seconds>(since1970).count()) - referenceSince1970;
  return true;
}

void NSDate::registerClass() {
  StandIn<NSDate>("Foundation", "NSDate", "NSObject")
      .factory<"date", &makeNow>()
      .factory<"now", &makeNow>()
      .factory<"dateWithTimeIntervalSinceNow:", &makeSinceNow>()
      .factory<"dateWithTimeIntervalSinceReferenceDate:", &makeAt>()
      .factory<"dateWithTimeIntervalSince1970:", &makeSince1970>()
      .factory<"distantFuture", &distantFuture>()
      .factory<"distantPast", &distantPast>()
      .classMethod<"timeIntervalSinceReferenceDate", &now>()
      .method<"init", &init>()
      .method<"initWithTimeIntervalSinceNow:", &initSinceNow>()
      .method<"initWithTimeIntervalSinceReferenceDate:", &initWithReference>()
      .method<"timeIntervalSinceNow", &timeIntervalSinceNow>()
      .method<"timeIntervalSinceDate:", &timeIntervalSinceDate>()
      .method<"timeIntervalSinceReferenceDate", &secondsOf>()
      .method<"timeIntervalSince1970", &timeIntervalSince1970>()
      .method<"dateByAddingTimeInterval:", &dateByAddingTimeInterval>()
      .method<"compare:", &compare>()
      .method<"earlierDate:", &earlierDate>()
      .method<"laterDate:", &laterDate>()
      .method<"isEqual:", &isEqual>()
      .method<"isEqualToDate:", &isEqual>()
      .method<"hash", &hash>()
      .method<"description", &describe>()
      .method<"copyWithZone:", &shareAsCopy>()
      .finish();
}

}  // namespace sim
