#include <utility>

#include "simulator/machine/Journal.h"
#include "simulator/machine/NumberReader.h"
#include "simulator/script/Command.h"

namespace sim {
namespace {

std::string shown(const Word& word) {
  return word.quoted ? sim::quoted(word.text) : word.text;
}

[[noreturn]] void failWord(const Word& word, std::string_view what) {
  throw ScriptError(word.column, "expected " + std::string(what) + ", found " + shown(word));
}

template <class Number>
Number required(const Word& word, std::string_view what) {
  const auto value = wholeNumber<Number>(word.text);
  if (word.quoted || !value) failWord(word, what);
  return *value;
}

struct Unit {
  std::string_view suffix;
  double seconds;
};

}  // namespace

Arguments::Arguments(std::vector<Word> words, std::size_t endColumn)
    : words_(std::move(words)), endColumn_(endColumn) {}

const Word& Arguments::word(std::string_view what) {
  if (atEnd()) throw ScriptError(endColumn_, "expected " + std::string(what));
  return words_[next_++];
}

bool Arguments::takeKeyword(std::string_view keyword) {
  const Word* next = peek();
  if (next == nullptr || next->quoted || next->text != keyword) return false;
  ++next_;
  return true;
}

bool Arguments::takeEither(std::string_view first, std::string_view second) {
  if (takeKeyword(first)) return true;
  if (!takeKeyword(second))
    failHere("expected " + std::string(first) + " or " + std::string(second));
  return false;
}

double Arguments::number(std::string_view what) {
  return required<double>(word(what), what);
}

long Arguments::integer(std::string_view what) {
  return required<long>(word(what), what);
}

bool Arguments::yesOrNo(std::string_view what) {
  const std::string form = std::string(what) + " (YES or NO)";
  const Word& found = word(form);
  if (!found.quoted && found.text == "YES") return true;
  if (!found.quoted && found.text == "NO") return false;
  failWord(found, form);
}

Nanoseconds Arguments::duration(std::string_view what) {
  const std::string form = std::string(what) + " such as 250ms, 10s, 5m or 8h";
  const Word& found = word(form);
  // "ms" before "m" and "s", which it ends and starts with.
  for (const Unit unit : {Unit{"ms", 0.001}, Unit{"s", 1}, Unit{"m", 60}, Unit{"h", 3600}}) {
    const std::string_view text = found.text;
    if (found.quoted || !text.ends_with(unit.suffix)) continue;
    const auto amount = wholeNumber<double>(text.substr(0, text.size() - unit.suffix.size()));
    if (amount && *amount >= 0) return nanoseconds(*amount * unit.seconds);
  }
  failWord(found, form);
}

void Arguments::finish() {
  if (!atEnd()) failHere("nothing may follow here, found " + shown(words_[next_]));
  isFinished_ = true;
}

void Arguments::failHere(const std::string& message) const {
  throw ScriptError(atEnd() ? endColumn_ : words_[next_].column, message);
}

}  // namespace sim
