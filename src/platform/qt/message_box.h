#pragma once

#include <QDialog>
#include <QPushButton>

#include "platform/qt/voice.h"

namespace mevracard {

/// A modal box: a text, all of which is seen on any screen, and an OK button like the table's.
class MessageBox final : public QDialog {
 public:
  enum class Kind { Message, Error };

  /// Without a parent it stands where the window system puts it.
  MessageBox(QWidget* parent, Kind kind, const QString& title, const QString& text);

  [[nodiscard]] const QString& text() const { return text_; }
  /// Shows it with its middle there, as far as the screen has room, and waits until it is closed.
  void waitAt(QPoint middle);

 protected:
  /// A key that does nothing is answered with the one that does.
  void keyPressEvent(QKeyEvent* event) override;

 private:
  [[nodiscard]] int grown(int pixels) const;

  QString text_;
  double growth_;
  QPushButton* ok_;
  Speech speech_;
  Voice voice_{speech_, *this};
};

}  // namespace mevracard
