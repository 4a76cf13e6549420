#include "platform/qt/widgets.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QTextDocument>
#include <QTextFrame>
#include <QTimer>

#include "platform/qt/look.h"
#include "platform/qt/paint.h"

namespace mevracard {

namespace {

constexpr int largestText = 17, smallestText = 13;  // pixels
constexpr int textMargin = 2;

bool isShown(const Control& control) { return control.visible && isWidget(control); }

bool isText(const Control& control) {
  return control.kind == ControlKind::Label && static_cast<const Label&>(control).scrolls;
}

/// A text that does not fit has grown at its end, and there stands what is new. The first line that
/// is seen is whole.
void scrollToNews(QTextEdit& widget) {
  QScrollBar& bar = *widget.verticalScrollBar();
  const int line = QFontMetrics(widget.font()).lineSpacing();
  bar.setSingleStep(line);
  if (const int cut = (bar.maximum() - textMargin) % line; bar.maximum() > 0 && cut > 0) {
    QTextFrame& text = *widget.document()->rootFrame();
    QTextFrameFormat format = text.frameFormat();
    format.setBottomMargin(format.bottomMargin() + line - cut);
    text.setFrameFormat(format);
  }
  bar.setValue(bar.maximum());
}

void flushText(QTextEdit& widget, const QString& text, const QRect& place) {
  if (widget.toPlainText() == text && widget.geometry() == place) return;
  widget.setGeometry(place);
  QTextDocument trial(text);
  trial.setDocumentMargin(textMargin);
  QFont font = widget.font();
  for (int size = largestText; size >= smallestText; --size) {
    font.setPixelSize(size);
    trial.setDefaultFont(font);
    trial.setTextWidth(place.width());
    if (trial.size().height() <= place.height()) break;
  }
  widget.setFont(font);
  widget.setPlainText(text);
  widget.moveCursor(QTextCursor::End);  // which is brought into view when it is first shown
  scrollToNews(widget);
  // A text that is about to be shown gets its layout only then.
  if (!widget.isVisible()) QTimer::singleShot(0, &widget, [&widget] { scrollToNews(widget); });
}

}  // namespace

Widgets::Widgets(const Form& form, ControlEvents& events, QWidget& canvas)
    : form_(form), events_(events), canvas_(canvas) {}

QWidget* Widgets::of(const Control& control) const {
  const auto found = widgets_.find(&control);
  return found == widgets_.end() ? nullptr : found->second;
}

bool Widgets::isPlayersOwn(const QWidget& widget) const {
  const auto found = controls_.find(&widget);
  return found != controls_.end() && !takesFocus(*found->second);
}

void Widgets::flush(const Views& views) {
  views_ = views;
  for (Control* control : form_.controls) {
    QWidget* widget = of(*control);
    if (widget == nullptr && isShown(*control)) widget = make(*control);
    if (widget == nullptr) continue;
    if (control->visible) flush(*widget, *control);
    widget->setEnabled(control->enabled);
    widget->setVisible(control->visible);
  }
}

void Widgets::flush(QWidget& widget, const Control& control) {
  const QRect place = placeOf(static_cast<const Box&>(control));
  if (auto* text = qobject_cast<QTextEdit*>(&widget)) {
    flushText(*text, toText(static_cast<const Label&>(control).caption), place);
    return;
  }
  widget.setGeometry(place);
  if (control.kind == ControlKind::ScrollBar) {
    const auto& bar = static_cast<const ScrollBar&>(control);
    const QSignalBlocker silent(&widget);
    static_cast<QScrollBar&>(widget).setRange(bar.minimum, bar.maximum);
    static_cast<QScrollBar&>(widget).setValue(bar.value);
  } else {
    const auto& caption = control.kind == ControlKind::Label
                              ? static_cast<const Label&>(control).caption
                              : static_cast<const Button&>(control).caption;
    static_cast<QPushButton&>(widget).setText(toText(caption));
  }
}

QRect Widgets::placeOf(const Box& box) const {
  const double ratio = canvas_.devicePixelRatioF();
  const QRect dots = toRect(views_.placeOf(box));
  const QSize size = (QSizeF(dots.size()) / ratio).toSize();
  QRect place((QPointF(dots.topLeft()) / ratio).toPoint(), size);
  if (box.kind == ControlKind::Button) {
    const QPoint middle = place.center();
    place.setSize(size.expandedTo(smallestSize(static_cast<const Button&>(box))));
    place.moveCenter(middle);
  }
  // A text has the room down to the window's lower edge. A button that would stand on it stands at
  // its lower end instead, and the text ends above.
  if (isText(box)) place.setBottom(canvas_.height() - textMargin);
  for (const Control* other : form_.controls) {
    if (!isShown(*other) || isText(*other) == isText(box)) continue;
    const QRect theirs = toRect(views_.placeOf(static_cast<const Box&>(*other)));
    if (!theirs.intersects(dots)) continue;
    if (isText(box)) {
      place.setBottom(placeOf(static_cast<const Box&>(*other)).top() - textMargin);
    } else {
      place.moveBottom(static_cast<int>(theirs.bottom() / ratio));
    }
  }
  return place;
}

QWidget* Widgets::make(Control& control) {
  QWidget* widget = nullptr;
  if (control.kind == ControlKind::ScrollBar) {
    auto* bar = new QScrollBar(Qt::Horizontal, &canvas_);
    bar->setFocusPolicy(Qt::StrongFocus);
    bar->setTracking(false);
    bar->setInvertedControls(false);  // Left is less
    bar->setPageStep(1);
    bar->setAccessibleName(toText(static_cast<const ScrollBar&>(control).spoken));
    connect(bar, &QScrollBar::valueChanged, this,
            [this, &control](int value) { events_.send(EventKind::Scroll, control, value); });
    widget = bar;
  } else if (isText(control)) {
    widget = makeText(static_cast<const Label&>(control));
  } else {
    auto* button = new QPushButton(&canvas_);
    if (control.kind == ControlKind::Label) makeLink(*button, static_cast<const Label&>(control));
    connect(button, &QPushButton::clicked, this,
            [this, &control] { events_.send(EventKind::Click, control); });
    widget = button;
  }
  widget->setObjectName(QString::fromStdString(control.fullName()));
  widget->installEventFilter(this);
  controls_[widget] = &control;
  return widgets_[&control] = widget;
}

QWidget* Widgets::makeText(const Label& label) {
  auto* text = new QTextEdit(&canvas_);
  text->setReadOnly(true);
  text->setTextInteractionFlags(Qt::TextSelectableByMouse);
  text->setContextMenuPolicy(Qt::NoContextMenu);
  text->setFrameShape(QFrame::NoFrame);
  text->document()->setDocumentMargin(textMargin);
  QPalette colors = text->palette();
  colors.setColor(QPalette::Base, toColor(label.backColor));
  colors.setColor(QPalette::Text, toColor(label.foreColor));
  text->setPalette(colors);
  text->setFont(toFont(label.font, 1));
  return text;
}

void Widgets::makeLink(QPushButton& link, const Label& label) {
  link.setFlat(true);
  link.setCursor(Qt::PointingHandCursor);
  link.setFont(toFont(label.font, 1));
  link.setStyleSheet(QString("text-align: left; border: none; padding-left: 2px; color: %1")
                         .arg(toColor(label.foreColor).name()));
}

bool Widgets::eventFilter(QObject* watched, QEvent* event) {
  Control& control = *controls_.at(watched);
  auto* button = control.kind == ControlKind::Button ? static_cast<QPushButton*>(watched) : nullptr;
  switch (event->type()) {
    case QEvent::Paint:
      if (button == nullptr) break;
      paintButton(*button, static_cast<const Button&>(control), views_.of(control));
      return true;
    case QEvent::MouseButtonPress:
      if (button != nullptr && static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
        events_.send(EventKind::MouseDown, control);
      }
      break;
    case QEvent::FocusIn:
      if (takesFocus(control)) {
        events_.focusMoved(control, static_cast<QFocusEvent*>(event)->reason());
      }
      break;
    case QEvent::KeyPress:
    case QEvent::KeyRelease: {
      const int key = static_cast<QKeyEvent*>(event)->key();
      if (button == nullptr || key == Qt::Key_Tab || key == Qt::Key_Backtab) break;
      event->ignore();  // goes on to the window, which knows what a key does
      return true;
    }
    default:
      break;
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace mevracard
