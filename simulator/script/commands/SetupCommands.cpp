#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <optional>

#include "objc/runtime.h"
#include "simulator/machine/NearestName.h"
#include "simulator/script/Session.h"
#include "simulator/script/commands/PhoneCommands.h"
#include "simulator/script/names/LocaleNames.h"
#include "simulator/script/names/NameChecks.h"
#include "simulator/standin/Fidelity.h"
#include "simulator/standin/KnownNames.h"
#include "simulator/standin/Versions.h"

namespace sim {
namespace {

Setup& setup() {
  return Session::current().phone.setup;
}

void systemVersion(Arguments& arguments) {
  const Word& word = arguments.word("a version such as 15.4");
  const bool isVersion = !word.text.empty() && word.text.front() != '.' &&
                         word.text.back() != '.' && word.text.find("..") == std::string::npos &&
                         word.text.find_first_not_of("0123456789.") == std::string::npos;
  if (!isVersion)
    throw ScriptError(word.column, "expected a version such as 15.4, found " + word.text);
  arguments.finish();
  const bool isOtherSystem = majorVersion(word.text) != systemMajor();
  if (isOtherSystem && Session::current().host.isRegistered())
    throw ScriptError(0, "the system's version must be said by a line of its own");
  setup().systemVersion = word.text;
}

void locale(Arguments& arguments) {
  const Word& word = arguments.word("a locale such as en_US");
  const bool isIdentifier =
      word.text.size() >= 2 && std::all_of(word.text.begin(), word.text.end(), [](char letter) {
        return std::isalnum(static_cast<unsigned char>(letter)) || letter == '_' || letter == '-';
      });
  if (!isIdentifier)
    throw ScriptError(word.column, "expected a locale such as en_US, found " + word.text);
  if (!isLocale(word.text))
    throw ScriptError(word.column, "there is no locale " + word.text + nearestLocale(word.text));
  arguments.finish();
  setup().locale = word.text;
}

void process(Arguments& arguments) {
  const std::string name = arguments.text("the name of a process");
  arguments.finish();
  setup().processName = name;
}

void haptics(Arguments& arguments) {
  const Word* word = arguments.peek();
  const long level = arguments.integer("a level from 0 to 2");
  if (level < 0 || level > 2)
    throw ScriptError(word->column, "expected a level from 0 to 2, found " + word->text);
  arguments.finish();
  setup().feedbackSupportLevel = level;
}

// Whoever leaves out what no phone has leaves out nothing.
void requireStandIn(const Word& cls, const std::optional<Word>& member) {
  const Names classes = standInClasses();
  if (std::find(classes.begin(), classes.end(), cls.text) == classes.end())
    throw ScriptError(cls.column, "there is no class " + cls.text + " to leave out" +
                                      didYouMean(cls.text, classes));
  if (!member) return;
  const Names members = standInMembers(cls.text);
  if (std::find(members.begin(), members.end(), member->text) == members.end())
    throw ScriptError(member->column, cls.text + " itself has no method or property " +
                                          member->text + " to leave out" +
                                          didYouMean(member->text, members));
}

// What the simulated phone itself is made of, and dies without.
constexpr std::string_view indispensable[] = {
    "CAGradientLayer", "NSArray",        "NSDate",
    "NSDictionary",    "NSMutableArray", "NSMutableDictionary",
    "NSNotification",  "NSNumber",       "NSObject",
    "NSSet",           "NSString",       "NSValue",
    "UITouch"};

void missing(Arguments& arguments) {
  if (Session::current().host.isRegistered())
    throw ScriptError(0, "what is missing must be said by a line of its own");
  const Word cls = arguments.word("the name of a class");
  std::optional<Word> member;
  if (!arguments.atEnd()) member = arguments.word("a selector");
  arguments.finish();
  if (!member) {
    if (std::ranges::find(indispensable, cls.text) != std::end(indispensable))
      throw ScriptError(cls.column, "the phone itself cannot do without " + cls.text);
    setup().missingClasses.insert(cls.text);
  } else {
    setup().missingMethods.insert(cls.text + ' ' + member->text);
  }
  nameChecks().system.add([cls, member] { requireStandIn(cls, member); });
}

void foreignClass(Arguments& arguments) {
  const std::string name = arguments.text("the name of a class");
  arguments.finish();
  setup().foreignClasses.push_back(name);
}

void journalClassChanges(Arguments& arguments) {
  arguments.finish();
  setup().journalsClassChanges = true;
}

// Before extensions load: what they add themselves cannot be traced.
void requireMethod(const Word& cls, const Word& selector) {
  const bool comesWithLibrary = setup().hasClass(cls.text) && !libraryToLoadFor(cls.text).empty();
  Class holder = objc_getClass(cls.text.c_str());
  if (holder == nullptr && !comesWithLibrary)
    throw ScriptError(cls.column, isKnownClass(cls.text) ? "this phone lacks the class " + cls.text
                                                         : noSuchClass(cls.text));
  const bool ofClass = selector.text.starts_with('+');
  const std::string name = selector.text.substr(ofClass ? 1 : 0);
  if (ofClass) holder = object_getClass(reinterpret_cast<id>(holder));
  if (class_getInstanceMethod(holder, sel_registerName(name.c_str())) != nullptr) return;
  const Names members = standInMembers(cls.text);
  if (comesWithLibrary && std::find(members.begin(), members.end(), name) != members.end()) return;
  throw ScriptError(selector.column, std::string("there is no method ") + (ofClass ? "+[" : "-[") +
                                         cls.text + ' ' + name + "] to trace" +
                                         didYouMean(name, selectorNames(cls.text, ofClass)));
}

void trace(Arguments& arguments) {
  const Word cls = arguments.word("the name of a class");
  const Word selector = arguments.word("a selector");
  arguments.finish();
  setup().traced.emplace_back(cls.text, selector.text);
  nameChecks().system.add([cls, selector] { requireMethod(cls, selector); });
}

void file(Arguments& arguments) {
  const Word path = arguments.word("a path of the phone");
  const std::string text = arguments.text("the file's text");
  arguments.finish();
  if (!path.text.starts_with('/'))
    throw ScriptError(path.column, "expected an absolute path, found " + path.text);
  const auto place = Session::current().phone.file(path.text);
  std::filesystem::create_directories(place.parent_path());
  std::ofstream stream(place, std::ios::binary);
  stream << text;
  stream.close();
  if (!stream) throw ScriptError(path.column, path.text + ": " + std::strerror(errno));
}

}  // namespace

void addSetupCommands(CommandTable& table) {
  table.add({"ios", Stage::setup, "ios VERSION", "ios 16.1.2",
             "Sets the version of the system, and with it which classes and methods it has.",
             systemVersion});
  table.add({"locale", Stage::setup, "locale ID", "locale ar_SA",
             "Sets the language and region, of known codes: they need not go together.", locale});
  table.add({"process", Stage::setup, "process NAME", "process Preferences",
             "Names the process that the extension is loaded into; without it, SpringBoard.",
             process});
  table.add({"haptics", Stage::setup, "haptics 0|1|2", "haptics 1",
             "What the phone can make felt: 0 nothing, 1 system sounds, 2 (without this line) "
             "every kind of feedback.",
             haptics});
  table.add({"missing", Stage::setup, "missing CLASS [SELECTOR]",
             "missing SBMediaController pauseForEventSource:",
             "Leaves a class of the system, or one of its methods or properties, out of the phone.",
             missing});
  table.add({"class", Stage::setup, "class NAME", "class SleepTimer",
             "Has another extension load first, with a class of that name.", foreignClass});
  table.add({"journal-class-changes", Stage::setup, "journal-class-changes",
             "journal-class-changes",
             "Journals every class, method, property and hook that the extension adds as it loads.",
             journalClassChanges});
  table.add({"trace", Stage::setup, "trace CLASS SELECTOR", "trace NSUserDefaults synchronize",
             "Journals each call of a method of the system, with the receiver's class and the "
             "arguments; `+` before the selector means a class method.",
             trace});
  table.add({"file", Stage::any, "file PATH TEXT", R"(file "/var/mobile/note.txt" "two\nlines\n")",
             "Writes a file of the phone, with the folders on its way.", file});
}

}  // namespace sim
