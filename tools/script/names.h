#pragma once

#include <string>
#include <string_view>
#include <unordered_map>

#include "ui/main_window.h"

namespace mevracard::script {

/// The parts of the three windows by the names that a script uses. Names them once, for as long as
/// the windows live. Look-ups throw ScriptError where there is no such part.
class Names {
 public:
  explicit Names(MainWindow& w);

  /// "k(5)", "wins", "authormevra.Label1"
  [[nodiscard]] Control& control(std::string_view name) const;
  [[nodiscard]] MenuEntry& entry(std::string_view name) const;
  [[nodiscard]] Form& window(std::string_view name) const;

  /// The same, null where there is none.
  [[nodiscard]] Control* findControl(std::string_view name) const;
  [[nodiscard]] MenuEntry* findEntry(std::string_view name) const;
  [[nodiscard]] Form* findWindow(std::string_view name) const;

 private:
  void addWindow(Form& form);
  void addControl(const std::string& window, Control& control);
  void addEntry(MenuEntry& entry);

  std::unordered_map<std::string, Control*> controls_;
  std::unordered_map<std::string, MenuEntry*> entries_;
  std::unordered_map<std::string, Form*> windows_;
};

}  // namespace mevracard::script
