#pragma once

#include <QObject>
#include <QPointer>
#include <array>

#include "platform/qt/spoken_tree.h"

namespace mevracard {

/// Hands a window's speech on to assistive technology. What is asked for stands in the accessible
/// tree below the canvas. A screen reader says what the keyboard comes to, and nothing that changes
/// where it is: so the news stands in turn at two places that nobody sees, and the keyboard goes
/// there; where a widget has it, it comes back at once.
class Voice final : public QObject {
 public:
  Voice(Speech& speech, QWidget& canvas);

  /// Hands on what is new, and gives the keyboard to the canvas or to a widget on it.
  void flush(QWidget& keyboard);

 protected:
  /// The news is said when the keyboard comes to its place: at once, or along with the window.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void makePlaces();
  void writeNews();
  void moveKeyboard();
  void reportFocus();
  void said();
  void keyboardCame(QFocusEvent& focusIn);

  Speech& speech_;
  QWidget& canvas_;
  std::vector<SpokenList> told_;
  std::array<NewsPlace*, 2> places_{};  ///< the first takes the keyboard for the canvas
  bool waiting_ = false;                ///< for the keyboard: the news is written, and not said
  QPointer<QWidget> keyboard_;
};

}  // namespace mevracard
