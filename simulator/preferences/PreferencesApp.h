// The phone's Settings application. On a phone it is a process of its own; here its window lies in
// the host, above the home screen, and the extension finds it in no list.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "objc/Ownership.h"
#include "simulator/preferences/PageView.h"
#include "simulator/preferences/PaneFolder.h"
#include "simulator/springboard/AppWindow.h"

namespace sim {

class PreferencesApp {
 public:
  using MakePage = std::function<Page()>;  // asked again after each change

  // That of the running host.
  static PreferencesApp& current();

  // With the panes that are installed now. Nothing when it is open already, or on a phone that has
  // no windows.
  void open();
  void close();
  bool isOpen() const { return window_.isOpen(); }
  // Of the panes that cannot be read.
  const std::vector<std::string>& problems() const { return folder_.problems; }

  objc::Object page() const;  // PageView; nil while it is closed
  void push(MakePage make);
  void pop();
  // A pane by its list's base name; what is not there opens nothing.
  void openPane(const std::string& name, const std::string& back);
  // After a setting has changed.
  void refresh();

  // A keyboard for the row of that key; `done` is told the text when it goes.
  void edit(const std::string& key, const std::string& text,
            std::function<void(const std::string&)> done);
  void stopEditing();
  // What stands in the row of that key as long as it is typed in.
  std::optional<std::string> draftOf(const std::string& key) const;

 private:
  struct Level {
    objc::Strong<objc::Object> view;  // PageView
    MakePage make;
  };
  struct Editing {
    std::string key, before, text;
    std::function<void(const std::string&)> done;
  };

  void show(Level& level);
  void showTop();
  void type(const std::string& key);
  void showKeyboard();

  PaneFolder folder_;
  AppWindow window_;
  objc::Strong<objc::Object> keyboard_;  // Keyboard; nil while nothing is typed
  std::vector<Level> levels_;
  std::optional<Editing> editing_;
};

}  // namespace sim
