#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <array>

#include "platform/qt/spoken_tree.h"

namespace mevracard {

/// Hands a window's speech on to assistive technology. What is asked for stands in the accessible
/// tree below the canvas. A screen reader says what the keyboard comes to, and nothing that changes
/// where it is: so the news stands in turn at two places that nobody sees. They have the keyboard
/// for the canvas; where a widget has it, it is reported at the place and not back, which a reader
/// would take for more important than the news that it has just begun.
class Voice final : public QObject {
 public:
  Voice(Speech& speech, QWidget& canvas);

  /// Hands on what is new, and gives the keyboard to the canvas or to a widget on it.
  void flush(QWidget& keyboard);

 protected:
  /// The keyboard comes to the window, leaves it, or comes to the place of the news.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void makePlaces();
  void writeNews();
  void keyboardCame(QFocusEvent& focusIn);
  /// Speaks when all is done that is at hand: a handler may have more news, or open a window.
  void speakSoon();
  void speak();
  [[nodiscard]] bool isBehindAnother() const;

  Speech& speech_;
  QWidget& canvas_;
  std::vector<SpokenList> told_;
  std::array<NewsPlace*, 2> places_{};  ///< the first takes the keyboard for the canvas
  bool waiting_ = false;                ///< the news is written, and not said
  bool lineDue_ = false;                ///< the keyboard came back to where the news was
  bool newsFollows_ = true;             ///< it was away at a window of the game, or never here
  QPointer<QWidget> keyboard_;
  QElapsedTimer activeSince_;
};

}  // namespace mevracard
