#include <algorithm>
#include <cstdlib>
#include <optional>

#include "simulator/script/Session.h"
#include "simulator/script/commands/PhoneCommands.h"
#include "simulator/script/names/JournalNames.h"
#include "simulator/script/values/Literal.h"
#include "simulator/script/words/Wildcard.h"

namespace sim {
namespace {

// Journal lines are printed to the millisecond; that is what a script means by a time.
constexpr double printedPrecision = 0.0005;

std::vector<JournalEntry> matching(std::string_view pattern) {
  const Session& session = Session::current();
  std::vector<JournalEntry> found;
  session.phone.journal.visit(session.journalStart, [&](const JournalEntry& entry) {
    if (matchesWildcard(entry.text, pattern)) found.push_back(entry);
    return true;
  });
  return found;
}

std::string times(const std::vector<JournalEntry>& entries) {
  if (entries.empty()) return "no such line";
  std::string text = "it at ";
  for (const JournalEntry& entry : entries)
    text += (&entry == &entries.front() ? "" : ", ") + notation(seconds(entry.time));
  return text;
}

// What the journal does say, for the reader of a failure: its last lines.
std::string lastLines() {
  constexpr std::size_t shown = 12;
  const Session& session = Session::current();
  const Journal& journal = session.phone.journal;
  if (journal.size() <= session.journalStart) return "\n  the journal is empty";
  const std::size_t first =
      std::max(session.journalStart, journal.size() - std::min(journal.size(), shown));
  std::string text = first > session.journalStart ? "\n         …" : "";
  for (const JournalEntry& entry : journal.entries(first)) text += "\n  " + formatted(entry);
  return text;
}

struct Wanted {
  Word text;
  std::optional<double> at;
  double within = printedPrecision;
  std::optional<long> times;

  bool accepts(const JournalEntry& entry) const {
    return !at || std::abs(entry.time - nanoseconds(*at)) <= nanoseconds(within);
  }
  std::string description() const {
    return sim::quoted(text.text) + (at ? " at " + notation(*at) : "") +
           (times ? ", " + std::to_string(*times) + " times" : "");
  }
};

Wanted readWanted(Arguments& arguments) {
  Wanted wanted{arguments.word("a journal line"), {}, printedPrecision, {}};
  while (!arguments.atEnd()) {
    if (arguments.takeKeyword("at"))
      wanted.at = arguments.number("seconds");
    else if (arguments.peek()->text == "within")
      wanted.within = readTolerance(arguments);
    else if (arguments.takeKeyword("times"))
      wanted.times = arguments.integer("a number of lines");
    else
      arguments.failHere("expected at, within or times");
  }
  arguments.finish();
  return wanted;
}

void expectJournal(Arguments& arguments) {
  const Wanted wanted = readWanted(arguments);
  const auto candidates = matching(wanted.text.text);
  const auto count = std::count_if(candidates.begin(), candidates.end(),
                                   [&wanted](const auto& entry) { return wanted.accepts(entry); });
  if (count == 0) requireKnownNames(wanted.text);
  if (wanted.times ? count == *wanted.times : count > 0) return;
  throw ScriptError(wanted.text.column, "expected in the journal " + wanted.description() +
                                            ", found " + times(candidates) + lastLines());
}

void expectNoJournal(Arguments& arguments) {
  const Word text = arguments.word("a journal line");
  arguments.finish();
  if (const auto found = matching(text.text); !found.empty())
    throw ScriptError(text.column, "expected nowhere in the journal " + sim::quoted(text.text) +
                                       ", found " + times(found));
  requireKnownNames(text);
}

void expectJournalOrder(Arguments& arguments) {
  const Journal& journal = Session::current().phone.journal;
  std::size_t from = Session::current().journalStart;
  for (bool first = true; first || !arguments.atEnd(); first = false) {
    const Word text = arguments.word("a journal line");
    bool found = false;
    journal.visit(from, [&](const JournalEntry& entry) {
      ++from;
      found = matchesWildcard(entry.text, text.text);
      return !found;
    });
    if (!found) {
      requireKnownNames(text);
      throw ScriptError(text.column, "expected in the journal, after the lines before it, " +
                                         sim::quoted(text.text) + ", found " +
                                         times(matching(text.text)) + lastLines());
    }
  }
  arguments.finish();
}

void clearJournal(Arguments& arguments) {
  arguments.finish();
  Session& session = Session::current();
  session.journalStart = session.phone.journal.size();
}

}  // namespace

void addJournalCommands(CommandTable& table) {
  table.add({"expect-journal", Stage::any,
             "expect-journal TEXT [at SECONDS] [within TOLERANCE] [times N]",
             "expect-journal \"-[SBMediaController pauseForEventSource:0]\" at 2701 times 1",
             "Requires a line of the journal (`*` stands for anything), at that time, that often.",
             expectJournal});
  table.add({"expect-no-journal", Stage::any, "expect-no-journal TEXT",
             "expect-no-journal \"-[SBMediaController *]\"",
             "Requires that no line of the journal is this one.", expectNoJournal});
  table.add({"expect-journal-order", Stage::any, "expect-journal-order TEXT TEXT…",
             "expect-journal-order \"-[SBMediaController pauseForEventSource:0]\" \"log *\"",
             "Requires these lines in this order; others may lie between.", expectJournalOrder});
  table.add({"clear-journal", Stage::any, "clear-journal", "clear-journal",
             "Later expectations look only at journal lines after this command.", clearJournal});
}

}  // namespace sim
