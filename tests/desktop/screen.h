#pragma once

#include <QProcess>
#include <QWidget>
#include <functional>
#include <optional>
#include <string>

#include "stage/window_game.h"

namespace mevracard {

/// A running game in its real window, played with the X server's own mouse and keyboard.
class Screen final : public WindowGame {
 public:
  explicit Screen(int seed = 1, const std::string& settings = "1/1/99");

  [[nodiscard]] TableState& state() { return window().state; }
  /// The widget of a button, a scroll bar or a text.
  [[nodiscard]] QWidget& widget(const Control& control) const;
  /// Where a control is painted on the screen; none if it is not to be seen.
  [[nodiscard]] std::optional<QRect> painted(const Control& control) const;
  /// Where a control stands on the screen.
  [[nodiscard]] QRect place(const Box& control) const;
  [[nodiscard]] QWidget& mainWidget() const;
  /// Whether the X server sends its keys to this window.
  [[nodiscard]] bool hasKeyboard(const Form& form) const;
  /// Whether every card is painted where it belongs.
  [[nodiscard]] bool isAtRest();

  /// Until the main window stands and has the keyboard.
  void start();
  void click(const Box& control);
  void doubleClick(const Box& control);
  /// A key by its X name ("p", "Return", "alt+f").
  void key(const std::string& name);
  /// Any command of the X test tool, without waiting for what it brings about.
  void tool(const QStringList& arguments);
  /// Presses the key until this holds: the window manager may still be taking the keyboard about,
  /// and a key is lost then, or have given it to nobody.
  bool keyUntil(const std::string& name, const std::function<bool()>& condition);
  /// Lets the program run until this holds; false if it never seems to.
  bool waitFor(const std::function<bool()>& condition);
  /// The text of the X server's answer where the pointer is.
  [[nodiscard]] static QPoint pointer();
};

}  // namespace mevracard
