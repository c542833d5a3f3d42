#include "simulator/preferences/Pages.h"

#include <algorithm>
#include <cstdio>

#include "simulator/preferences/PreferencesApp.h"
#include "simulator/preferences/StoredSetting.h"
#include "simulator/preferences/SystemWords.h"

namespace sim {
namespace {

void store(const Specifier& specifier, const SettingsValue& value, PreferencesApp& app) {
  try {
    storeSetting(specifier, value);
  } catch (const std::runtime_error& error) {
    std::fprintf(stderr, "Settings: %s\n", error.what());
  }
  app.refresh();
}

bool isOn(const Specifier& specifier) {
  const SettingsValue value = storedSetting(specifier);
  return areEqual(value, true) ||
         (!areEqual(value, false) &&
          (std::holds_alternative<long>(value) || std::holds_alternative<double>(value)));
}

std::string typedText(const Specifier& specifier) {
  const SettingsValue value = storedSetting(specifier);
  const auto* text = std::get_if<std::string>(&value);
  return text == nullptr ? std::string() : *text;
}

// Empty when none of the list's values is stored: so it is on the phone.
std::string chosenTitle(const Specifier& specifier, const PaneWords& words) {
  const SettingsValue value = storedSetting(specifier);
  for (std::size_t i = 0; i < specifier.values.size(); ++i)
    if (areEqual(specifier.values[i], value)) return words(specifier.titles[i]);
  return {};
}

void makeToggle(Row& row, const Specifier& specifier, PreferencesApp& app) {
  row.end = Row::End::toggle;
  row.isOn = isOn(specifier);
  row.tapped = [&app, specifier] { store(specifier, !isOn(specifier), app); };
}

void makeList(Row& row, const Specifier& specifier, const PaneWords& words,
              const std::string& title, PreferencesApp& app) {
  row.end = Row::End::arrow;
  row.value = chosenTitle(specifier, words);
  row.tapped = [&app, specifier, words, title] {
    app.push([&app, specifier, words, title] { return valuesPage(specifier, words, title, app); });
  };
}

void makeText(Row& row, const Specifier& specifier, const PaneWords& words, PreferencesApp& app) {
  const std::string typed = typedText(specifier);
  const auto draft = app.draftOf(specifier.key);
  row.isTyped = bool(draft);
  row.valueIsFaint = typed.empty() && !draft;
  row.value = draft ? *draft + '|' : typed.empty() ? words(specifier.placeholder) : typed;
  row.typed = [&app, specifier](const std::string& text) { store(specifier, text, app); };
  row.tapped = [&app, specifier, typed, done = row.typed] { app.edit(specifier.key, typed, done); };
}

void makeLink(Row& row, const Specifier& specifier, const std::string& title, PreferencesApp& app) {
  row.end = Row::End::arrow;
  row.tapped = [&app, name = specifier.label, title] { app.openPane(name, title); };
}

Row rowOf(const Specifier& specifier, const PaneWords& words, const std::string& title,
          PreferencesApp& app) {
  Row row{.label = words(specifier.label)};
  if (specifier.cell == Cell::toggle) makeToggle(row, specifier, app);
  if (specifier.cell == Cell::list) makeList(row, specifier, words, title, app);
  if (specifier.cell == Cell::text) makeText(row, specifier, words, app);
  if (specifier.cell == Cell::link) makeLink(row, specifier, title, app);
  return row;
}

Row entryRow(const SpecifierList& list, const std::string& title, PreferencesApp& app) {
  Row row{.label = list.entry->label, .end = Row::End::arrow};
  if (!list.entry->icon.empty()) row.icon = pathOnPhone(list.file.parent_path() / list.entry->icon);
  row.tapped = [&app, name = list.file.stem().string(), title] { app.openPane(name, title); };
  return row;
}

}  // namespace

Page rootPage(const PaneFolder& folder, PreferencesApp& app) {
  Page page{.title = settingsTitle(), .back = {}, .groups = {}};
  RowGroup entries;
  for (const SpecifierList& list : folder.lists)
    if (list.entry) entries.rows.push_back(entryRow(list, page.title, app));
  for (const std::string& problem : folder.problems) entries.footer += problem + '\n';
  page.groups.push_back(entries);
  return page;
}

Page panePage(const SpecifierList& list, const std::string& back, PreferencesApp& app) {
  const PaneWords words(list);
  Page page{.title = words(list.title), .back = back, .groups = {}};
  for (const Specifier& each : list.items) {
    if (each.cell == Cell::group)
      page.groups.push_back({words(each.label), words(each.footer), {}});
    else if (page.groups.empty())
      page.groups.emplace_back();
    if (each.cell != Cell::group)
      page.groups.back().rows.push_back(rowOf(each, words, page.title, app));
  }
  return page;
}

Page valuesPage(const Specifier& specifier, const PaneWords& words, const std::string& back,
                PreferencesApp& app) {
  Page page{.title = words(specifier.label), .back = back, .groups = {{}}};
  const SettingsValue stored = storedSetting(specifier);
  for (std::size_t i = 0; i < specifier.values.size(); ++i) {
    const SettingsValue& value = specifier.values[i];
    Row row{.label = words(specifier.titles[i])};
    if (areEqual(value, stored)) row.end = Row::End::check;
    row.tapped = [&app, specifier, value] { store(specifier, value, app); };
    page.groups.back().rows.push_back(std::move(row));
  }
  return page;
}

}  // namespace sim
