// The script commands of the person who uses the Settings application.
#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "objc/Message.h"
#include "simulator/machine/NearestName.h"
#include "simulator/machine/Phone.h"
#include "simulator/preferences/PreferencesApp.h"
#include "simulator/script/Command.h"
#include "simulator/script/values/PhoneVariables.h"
#include "simulator/uikit/touches/Finger.h"
#include "simulator/uikit/touches/Touch.h"

namespace sim {
namespace {

using objc::Object;

struct FoundRow {
  Object view;  // RowView
  std::string header;
};

PageView& shownPage() {
  const Object page = PreferencesApp::current().page();
  if (!page) throw ScriptError(0, "the Settings application is not open");
  return PageView::of(page);
}

std::vector<std::string> labels(const Page& page) {
  std::vector<std::string> all;
  for (const RowGroup& group : page.groups)
    for (const Row& row : group.rows) all.push_back(row.label);
  return all;
}

std::vector<FoundRow> rowsWith(const std::string& label, const std::optional<Word>& header) {
  const PageView& page = shownPage();
  std::vector<FoundRow> found;
  for (std::size_t i = 0; i < page.groups.size(); ++i)
    for (const auto& row : page.groups[i].rows)
      if (RowView::of(row.get()).row.label == label &&
          (!header || header->text == page.page.groups[i].header))
        found.push_back({row.get(), page.page.groups[i].header});
  return found;
}

std::optional<Word> takeHeader(Arguments& words) {
  if (!words.takeKeyword("under")) return std::nullopt;
  return words.word("the header of a group");
}

Object rowOf(const Word& label, const std::optional<Word>& header) {
  const auto found = rowsWith(label.text, header);
  if (found.size() == 1) return found.front().view;
  if (found.empty())
    throw ScriptError(label.column, "the page has no row " + sim::quoted(label.text) +
                                        didYouMean(label.text, labels(shownPage().page)));
  std::string headers;
  for (const FoundRow& each : found)
    headers += (headers.empty() ? "" : ", ") + ("under " + sim::quoted(each.header));
  throw ScriptError(label.column,
                    "there are several rows " + sim::quoted(label.text) + ": " + headers);
}

// Scrolled into sight first, as a person would.
void reach(Object row) {
  const Object page = PreferencesApp::current().page();
  PageView::of(page).scrollTo(row);
  objc::send<void, "layoutIfNeeded">(page);
  Finger::current().reach(row, middleOf(row));
}

void record(const std::string& what) {
  Phone::current().journal.record("user settings " + what);
}

void tapRow(Arguments& words) {
  const Word label = words.word("the label of a row");
  const auto header = takeHeader(words);
  words.finish();
  const Object row = rowOf(label, header);
  if (!RowView::of(row).row.tapped) throw ScriptError(label.column, "the row takes no taps");
  reach(row);
  record("tap " + sim::quoted(label.text));
  Finger::current().touch(row, row, middleOf(row));
}

void typeInRow(Arguments& words) {
  const Word label = words.word("the label of a row");
  const std::string typed = words.text("a text");
  const auto header = takeHeader(words);
  words.finish();
  const Object row = rowOf(label, header);
  const auto done = RowView::of(row).row.typed;
  if (!done) throw ScriptError(label.column, "nothing can be typed in the row");
  reach(row);
  record("type " + sim::quoted(label.text) + ' ' + sim::quoted(typed));
  done(typed);
}

void open() {
  PreferencesApp& app = PreferencesApp::current();
  record("open");
  app.open();
  if (!app.isOpen()) throw ScriptError(0, "this phone has no windows for it");
  if (!app.problems().empty()) throw ScriptError(0, app.problems().front());
}

void settings(Arguments& words) {
  if (words.takeKeyword("tap")) return tapRow(words);
  if (words.takeKeyword("type")) return typeInRow(words);
  const bool opens = words.takeKeyword("open");
  const bool closes = !opens && words.takeKeyword("close");
  const bool goesBack = !opens && !closes && words.takeKeyword("back");
  if (!opens && !closes && !goesBack) words.failHere("expected open, tap, type, back or close");
  words.finish();
  if (opens) return open();
  shownPage();
  record(closes ? "close" : "back");
  if (closes) PreferencesApp::current().close();
  if (goesBack) PreferencesApp::current().pop();
}

std::string shownValue(const Row& row) {
  if (row.end == Row::End::toggle) return row.isOn ? "YES" : "NO";
  if (row.end == Row::End::check) return "YES";
  return row.valueIsFaint && row.typed ? "none" : sim::quoted(row.value);
}

void expectSettings(Arguments& words) {
  if (words.takeKeyword("closed")) {
    words.finish();
    if (PreferencesApp::current().isOpen())
      throw ScriptError(0, "the Settings application is open");
    return;
  }
  const Word label = words.word("the label of a row");
  const Word expected = words.word("a text, YES, NO or none");
  const auto header = takeHeader(words);
  words.finish();
  const std::string wanted = expected.quoted ? sim::quoted(expected.text) : expected.text;
  const std::string found = shownValue(RowView::of(rowOf(label, header)).row);
  if (found != wanted)
    throw ScriptError(expected.column, "the row " + sim::quoted(label.text) + ": expected " +
                                           wanted + ", found " + found);
}

}  // namespace

void addPreferencesAppCommands(CommandTable& table) {
  table.add(
      {"settings", Stage::running,
       "settings open|back|close, settings tap LABEL [under HEADER], settings type LABEL TEXT "
       "[under HEADER]",
       "settings open",
       "The user opens the Settings application, goes a page back or home, taps the row of "
       "that label, or types a text in it. The page is scrolled until the row is seen, and the row "
       "touched as by `tap`; the text is there at once, without keyboard. While it is open "
       "$settings is its page.",
       settings});
  table.add({"expect-settings", Stage::running,
             "expect-settings LABEL VALUE|YES|NO|none [under HEADER], expect-settings closed",
             "expect-settings closed",
             "What a row of the Settings application's page shows: a list's or a text's value, "
             "whether a switch is on or a value is checked, or no text but a hint; or "
             "that the application is not open.",
             expectSettings});
  addPhoneVariable("settings", [] { return PreferencesApp::current().page(); });
}

}  // namespace sim
