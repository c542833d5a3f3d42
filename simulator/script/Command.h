// Commands of the phone script language: how they are declared and how they read their words.
#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "simulator/machine/Clock.h"

namespace sim {

// Something in a script is wrong, or an expectation failed. The interpreter adds file and line.
class ScriptError : public std::runtime_error {
 public:
  ScriptError(std::size_t place, const std::string& message)
      : std::runtime_error(message), column(place) {}
  std::size_t column;  // 1-based; 0 for the whole line
};

struct Word {
  std::string text;  // without quotes, escapes resolved
  bool quoted = false;
  std::size_t column = 0;  // 1-based
};

// A command's words, read from left to right. Every reader throws ScriptError, naming the column
// and `what` was expected, when the word is missing or of another form.
class Arguments {
 public:
  Arguments(std::vector<Word> words, std::size_t endColumn);

  bool atEnd() const { return next_ == words_.size(); }
  const Word& word(std::string_view what);
  const Word* peek() const { return atEnd() ? nullptr : &words_[next_]; }
  // Takes the next word if it is this one, unquoted.
  bool takeKeyword(std::string_view keyword);
  // Takes one of the two, unquoted; true for the first.
  bool takeEither(std::string_view first, std::string_view second);
  std::string text(std::string_view what) { return word(what).text; }
  double number(std::string_view what);
  long integer(std::string_view what);
  bool yesOrNo(std::string_view what);          // YES or NO
  Nanoseconds duration(std::string_view what);  // 250ms, 10s, 5m, 8h
  // Nothing may follow. Every command calls it, and before it changes anything: a line is either
  // refused or done.
  void finish();
  bool isFinished() const { return isFinished_; }
  [[noreturn]] void failHere(const std::string& message) const;

 private:
  std::vector<Word> words_;
  std::size_t next_ = 0;
  bool isFinished_ = false;
  std::size_t endColumn_;
};

enum class Stage {
  setup,    // before boot only
  running,  // after boot only
  booted,   // after boot, also while the host is dead
  any,
};

struct Command {
  std::string name;
  Stage stage;
  std::string usage;    // "advance DURATION"
  std::string example;  // one line that works
  std::string help;     // one sentence
  std::function<void(Arguments&)> run;
};

class CommandTable {
 public:
  void add(Command command);  // a name is added once
  const Command* find(std::string_view name) const;
  const std::map<std::string, Command, std::less<>>& all() const { return commands_; }

 private:
  std::map<std::string, Command, std::less<>> commands_;
};

// The list of what the language knows, by the folder whose classes the commands are about.
void addPhoneCommands(CommandTable& table);        // the phone and the script itself
void addFoundationCommands(CommandTable& table);   // foundation: default
void addPreferencesCommands(CommandTable& table);  // cephei: set
void addPlayerCommands(CommandTable& table);       // mediaremote: playlist, next-track, volume …
void addRadiosCommands(CommandTable& table);       // radios: bluetooth …
void addShortcutCommands(CommandTable& table);     // runwright: shortcuts
void addScreenCommands(CommandTable& table);       // springboard: screen
void addLockScreenCommands(CommandTable& table);   // coversheet: lock, unlock …
void addControlCenterCommands(CommandTable& table);   // controlcenter: module
void addPreferencesAppCommands(CommandTable& table);  // preferences: settings …
void addUIKitCommands(CommandTable& table);           // uikit: tap, select, expect-alert …
void addDrawingCommands(CommandTable& table);         // drawing: snapshot, expect-snapshot

}  // namespace sim
