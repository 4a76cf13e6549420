#pragma once

#include <string>
#include <string_view>

#include "script/names.h"
#include "stage/window_game.h"

namespace mevracard {

/// A game in its real window, played with clicks and keys that enter where the system's own do.
/// Parts of the windows go by the names that scripts use.
class Stage final : public WindowGame {
 public:
  explicit Stage(const std::string& settings);

  /// Every later deal lays out this deck.
  void stack(const Deck& deck) { window().stackedDeck = deck; }
  void menu(std::string_view name);
  void click(std::string_view name) { press(name, 1); }
  void doubleClick(std::string_view name) { press(name, 2); }
  /// "Enter", "Space", "Esc" or a character.
  void key(std::string_view name);
  /// Like `shoot`, of what lies around and between the centres of two controls.
  void shootBetween(const QString& name, std::string_view from, std::string_view to, int margin);
  /// The next message box is shot before it is closed.
  void shootNextBox(const QString& name) { boxName_ = name; }
  /// What a label says.
  [[nodiscard]] std::string caption(std::string_view name) const;

 private:
  void press(std::string_view name, int times);
  void beforeBoxCloses() override;
  [[nodiscard]] QPoint centreOf(std::string_view name) const;

  script::Names names_;
  QString boxName_;
};

}  // namespace mevracard
