#include "platform/qt/key_code.h"

#include "platform/event.h"

namespace mevracard {

int keyCodeOf(const QKeyEvent& event) {
  const bool command =
      (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) !=
      Qt::NoModifier;
  if (command) return 0;
  switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return keyEnter;
    case Qt::Key_Escape:
      return keyEscape;
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
    case Qt::Key_Backspace:
    case Qt::Key_Delete:
      return keyUntyped;
    default:
      break;
  }
  const QString text = event.text();
  return text.size() == 1 && text[0].isPrint() ? text[0].unicode() : 0;
}

}  // namespace mevracard
