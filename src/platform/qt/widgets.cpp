#include "platform/qt/widgets.h"

#include <QAbstractTextDocumentLayout>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextFrame>
#include <QTimer>
#include <cmath>

#include "platform/qt/look.h"
#include "platform/qt/paint.h"

namespace mevracard {

namespace {

constexpr Font textType{"MS Sans Serif", 12};
constexpr int textMargin = 2;  // pixels

/// A style draws the arrows by the font, in dots of an inch that are as many more as all has grown.
class GrowingScrollBar final : public QScrollBar {
 public:
  explicit GrowingScrollBar(QWidget& parent) : QScrollBar(Qt::Horizontal, &parent) {}

  void grow(double growth) {
    growth_ = growth;
    setFont(toFont(textType, growth));
  }

 protected:
  int metric(PaintDeviceMetric of) const override {
    const int usual = QScrollBar::metric(of);
    return of == PdmDpiX || of == PdmDpiY ? static_cast<int>(usual * growth_) : usual;
  }

 private:
  double growth_ = 1;
};

bool isShown(const Control& control) { return control.visible && isWidget(control); }

bool isText(const Control& control) {
  return control.kind == ControlKind::Label && static_cast<const Label&>(control).scrolls;
}

/// The height of a text in a room of this width.
int heightOf(const QString& text, const QFont& font, int width) {
  QTextDocument trial(text);
  trial.setDocumentMargin(textMargin);
  trial.setDefaultFont(font);
  trial.setTextWidth(width);
  return static_cast<int>(std::ceil(trial.size().height()));
}

/// A text that is too long for its room has grown at its end: the last paragraph, and there stands
/// what is new, begins at the top of the room.
void scrollToNews(QTextEdit& widget) {
  QScrollBar& bar = *widget.verticalScrollBar();
  bar.setSingleStep(QFontMetrics(widget.font()).lineSpacing());
  if (bar.maximum() == 0) return;
  const QTextDocument& document = *widget.document();
  const double top = document.documentLayout()->blockBoundingRect(document.lastBlock()).top();
  const int start = static_cast<int>(top);
  if (const int missing = start - bar.maximum(); missing > 0) {
    QTextFrame& text = *document.rootFrame();
    QTextFrameFormat format = text.frameFormat();
    format.setBottomMargin(format.bottomMargin() + missing);
    text.setFrameFormat(format);
  }
  bar.setValue(start);
}

void flushText(QTextEdit& widget, const QString& text, const QFont& font, const QRect& place) {
  if (widget.toPlainText() == text && widget.geometry() == place && widget.font() == font) return;
  widget.setGeometry(place);
  widget.setFont(font);
  widget.setPlainText(text);
  // The cursor is brought into view when the text is first shown.
  widget.setTextCursor(QTextCursor(widget.document()->lastBlock()));
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

int Widgets::heightOfAll(const Views& views) {
  views_ = views;
  const QRect window = canvas_.rect();
  for (const Control* control : form_.controls) {
    if (!isText(*control) || !control->visible) continue;
    const auto& text = static_cast<const Label&>(*control);
    const QRect place = placeOf(text);
    return window.height() - place.height() +
           heightOf(toText(text.caption), toFont(textType, growth()), place.width());
  }
  return 0;
}

double Widgets::growth() const { return views_.pinned.length(1) / canvas_.devicePixelRatioF(); }

void Widgets::flush(QWidget& widget, const Control& control) {
  const QRect place = placeOf(static_cast<const Box&>(control));
  if (auto* text = qobject_cast<QTextEdit*>(&widget)) {
    const QString caption = toText(static_cast<const Label&>(control).caption);
    flushText(*text, caption, toFont(textType, growth()), place);
    return;
  }
  if (control.kind == ControlKind::Label) {
    widget.setFont(toFont(static_cast<const Label&>(control).font, growth()));
  }
  widget.setGeometry(place);
  if (control.kind == ControlKind::ScrollBar) {
    const auto& bar = static_cast<const ScrollBar&>(control);
    const QSignalBlocker silent(&widget);
    auto& shown = static_cast<GrowingScrollBar&>(widget);
    shown.grow(growth());
    shown.setRange(bar.minimum, bar.maximum);
    shown.setValue(bar.value);
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
  // A text has the room down to the window's lower edge. A button that would stand on it keeps its
  // distance from there instead, and the text ends above.
  if (isText(box)) place.setBottom(canvas_.height() - textMargin);
  for (const Control* other : form_.controls) {
    if (!isShown(*other) || isText(*other) == isText(box)) continue;
    const QRect theirs = toRect(views_.placeOf(static_cast<const Box&>(*other)));
    if (!theirs.intersects(dots)) continue;
    if (isText(box)) {
      place.setBottom(placeOf(static_cast<const Box&>(*other)).top() - textMargin);
    } else {
      const int below = static_cast<int>(views_.pinned.y(form_.height)) - theirs.bottom();
      place.moveBottom(canvas_.height() - static_cast<int>(below / ratio));
    }
  }
  return place;
}

QWidget* Widgets::make(Control& control) {
  QWidget* widget = nullptr;
  if (control.kind == ControlKind::ScrollBar) {
    auto* bar = new GrowingScrollBar(canvas_);
    bar->setFocusPolicy(Qt::StrongFocus);
    bar->setTracking(false);
    bar->setInvertedControls(false);  // Left is less
    bar->setPageStep(1);
    bar->setAccessibleName(toText(static_cast<const ScrollBar&>(control).spoken));
    connect(bar, &QScrollBar::valueChanged, this,
            [this, &control](int value) { events_.send(EventKind::Scroll, control, value); });
    // At an end of its way it does not move, and who presses a key hears where it is.
    connect(bar, &QScrollBar::actionTriggered, this, [this, &control, bar] {
      if (bar->sliderPosition() == bar->value()) {
        events_.send(EventKind::KeyPress, control, keyUntyped);
      }
    });
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
  return text;
}

void Widgets::makeLink(QPushButton& link, const Label& label) {
  link.setFlat(true);
  link.setCursor(Qt::PointingHandCursor);
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
