#include "platform/qt/voice.h"

#include <QAbstractButton>
#include <QAccessibleWidget>
#include <QTimer>
#include <map>
#include <utility>

#include "platform/qt/canvas.h"
#include "platform/qt/look.h"

namespace mevracard {

namespace {

constexpr int firstList = 2;  ///< among the children of the canvas

const SpokenItem* itemOf(const Speech& speech, const Box* control) {
  for (const SpokenList& list : speech.lists) {
    for (const SpokenItem& item : list.items) {
      if (item.control == control) return &item;
    }
  }
  return nullptr;
}

int indexOf(const QAccessibleInterface& parent, const QAccessibleInterface* child, int count) {
  for (int i = 0; i < count; ++i) {
    if (parent.child(i) == child) return i;
  }
  return -1;
}

/// The canvas: two places for the news, the lists, and then its widgets.
class SpokenCanvas final : public QAccessibleWidget {
 public:
  explicit SpokenCanvas(Canvas& canvas)
      : QAccessibleWidget(&canvas, QAccessible::LayeredPane), canvas_(canvas) {}
  ~SpokenCanvas() override {
    for (const auto& [key, id] : ids_) QAccessible::deleteAccessibleInterface(id);
  }

  [[nodiscard]] Canvas& canvas() const { return canvas_; }
  [[nodiscard]] const Speech& speech() const { return canvas_.speech(); }
  [[nodiscard]] bool isNewsOfNow(int index) const { return index == newsNow_; }
  /// Gives the news another place, so that the accessible focus can move there.
  QAccessibleInterface* nextNews() { return part(newsNow_ = 1 - newsNow_, nullptr); }
  QAccessibleInterface* item(Box* control) const { return part(-1, control); }
  /// How many children it has besides its widgets.
  [[nodiscard]] int ownCount() const { return firstList + static_cast<int>(speech().lists.size()); }

  int childCount() const override { return ownCount() + QAccessibleWidget::childCount(); }
  QAccessibleInterface* child(int index) const override {
    const bool own = index >= 0 && index < ownCount();
    return own ? part(index, nullptr) : QAccessibleWidget::child(index - ownCount());
  }
  int indexOfChild(const QAccessibleInterface* part) const override {
    return indexOf(*this, part, childCount());
  }
  QAccessibleInterface* childAt(int x, int y) const override {
    for (int i = firstList; i < childCount(); ++i) {
      QAccessibleInterface* part = child(i);
      const bool hit = i < ownCount() ? part->childAt(x, y) != nullptr
                                      : !part->state().invisible && part->rect().contains(x, y);
      if (hit) return part;
    }
    return nullptr;
  }
  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.focusable = true;
    return state;
  }

 private:
  /// Made when it is first asked for, and kept: assistive technology knows it from then on.
  QAccessibleInterface* part(int index, Box* control) const;

  Canvas& canvas_;
  int newsNow_ = 0;
  mutable std::map<std::pair<int, const Box*>, QAccessible::Id> ids_;
};

/// A part of the canvas that is no widget: one of two places for the news, a list, or an item. It
/// is there as long as the canvas. A screen reader says what the accessible focus comes to, and
/// nothing that changes where it is: so the news goes from one place to the other, while the keyboard
/// stays.
class Part final : public QAccessibleInterface, public QAccessibleActionInterface {
 public:
  /// `index` among the canvas' children of a place or a list; an item's `control` else.
  Part(const SpokenCanvas& canvas, int index, Box* control)
      : canvas_(canvas), index_(index), control_(control) {}

  bool isValid() const override { return isNews() || list() != nullptr || item() != nullptr; }
  QObject* object() const override { return nullptr; }
  QWindow* window() const override { return canvas_.window(); }
  QAccessible::Role role() const override {
    return list() != nullptr ? QAccessible::List : QAccessible::ListItem;
  }
  QAccessible::State state() const override {
    QAccessible::State state;
    state.invisible = !isValid() || (isNews() && !canvas_.isNewsOfNow(index_));
    state.focusable = isNews();
    state.focused = isNews() && !state.invisible;
    state.selectable = answersPress();
    state.selected = item() != nullptr && item()->selected;
    return state;
  }
  QRect rect() const override {
    if (control_ == nullptr) return canvas_.rect();
    const QRect place = canvas_.canvas().placeOf(*control_);
    return {canvas_.canvas().mapToGlobal(place.topLeft()), place.size()};
  }

  QAccessibleInterface* parent() const override {
    QAccessibleInterface* whole = QAccessible::queryAccessibleInterface(&canvas_.canvas());
    for (int i = firstList; control_ != nullptr && i < canvas_.ownCount(); ++i) {
      if (whole->child(i)->indexOfChild(this) >= 0) return whole->child(i);
    }
    return whole;
  }
  int childCount() const override {
    return list() != nullptr ? static_cast<int>(list()->items.size()) : 0;
  }
  QAccessibleInterface* child(int index) const override {
    if (index < 0 || index >= childCount()) return nullptr;
    return canvas_.item(list()->items[static_cast<std::size_t>(index)].control);
  }
  int indexOfChild(const QAccessibleInterface* part) const override {
    return indexOf(*this, part, childCount());
  }
  QAccessibleInterface* childAt(int x, int y) const override {
    for (int i = 0; i < childCount(); ++i) {
      if (child(i)->rect().contains(x, y)) return child(i);
    }
    return nullptr;
  }

  void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}
  QString text(QAccessible::Text kind) const override {
    if (kind != QAccessible::Name || state().invisible) return {};
    if (isNews()) return toText(canvas_.speech().news);
    if (const SpokenList* list = this->list()) return toText(list->words);
    const SpokenItem* item = this->item();
    return item != nullptr ? toText(item->words) : QString();
  }

  void* interface_cast(QAccessible::InterfaceType type) override {
    const bool acts = type == QAccessible::ActionInterface && control_ != nullptr;
    return acts ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
  }
  QStringList actionNames() const override {
    return answersPress() ? QStringList(pressAction()) : QStringList();
  }
  void doAction(const QString& name) override {
    if (!answersPress() || name != pressAction()) return;
    // Who asked gets an answer first: a box may open, and stay.
    Canvas& whole = canvas_.canvas();
    QTimer::singleShot(0, &whole, [&whole, &control = *control_] { whole.press(control); });
  }
  QStringList keyBindingsForAction(const QString& /*name*/) const override { return {}; }

 private:
  [[nodiscard]] bool isNews() const { return control_ == nullptr && index_ < firstList; }
  [[nodiscard]] const SpokenList* list() const {
    if (control_ != nullptr || isNews() || index_ >= canvas_.ownCount()) return nullptr;
    return &canvas_.speech().lists[static_cast<std::size_t>(index_ - firstList)];
  }
  [[nodiscard]] const SpokenItem* item() const {
    return control_ != nullptr ? itemOf(canvas_.speech(), control_) : nullptr;
  }
  [[nodiscard]] bool answersPress() const { return item() != nullptr && item()->answersPress; }

  const SpokenCanvas& canvas_;
  int index_;
  Box* control_;
};

QAccessibleInterface* SpokenCanvas::part(int index, Box* control) const {
  QAccessible::Id& id = ids_[{index, control}];
  if (id == 0) id = QAccessible::registerAccessibleInterface(new Part(*this, index, control));
  return QAccessible::accessibleInterface(id);
}

QAccessibleInterface* makeVoice(const QString& /*type*/, QObject* object) {
  auto* canvas = dynamic_cast<Canvas*>(object);
  return canvas != nullptr ? new SpokenCanvas(*canvas) : nullptr;
}

SpokenCanvas* treeOf(QWidget& canvas) {
  return dynamic_cast<SpokenCanvas*>(QAccessible::queryAccessibleInterface(&canvas));
}

void report(QAccessibleInterface* part, QAccessible::Event kind) {
  QAccessibleEvent event(part, kind);
  QAccessible::updateAccessibility(&event);
}

void announce(QWidget& canvas, const QString& news) {
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
  QAccessibleAnnouncementEvent event(&canvas, news);
  QAccessible::updateAccessibility(&event);
#else
  Q_UNUSED(news)
  if (SpokenCanvas* tree = treeOf(canvas)) report(tree->nextNews(), QAccessible::Focus);
#endif
}

/// What assistive technology knows of the lists from before.
void reportChanges(const Speech& before, const Speech& now, QWidget& canvas) {
  SpokenCanvas* tree = treeOf(canvas);
  if (tree == nullptr) return;
  for (const SpokenList& list : now.lists) {
    for (const SpokenItem& item : list.items) {
      const SpokenItem* old = itemOf(before, item.control);
      QAccessibleInterface* part = tree->item(item.control);
      if (old == nullptr) {
        report(part, QAccessible::ObjectCreated);
        continue;
      }
      if (old->words != item.words) report(part, QAccessible::NameChanged);
      if (old->selected == item.selected) continue;
      QAccessible::State changed;
      changed.selected = true;
      QAccessibleStateChangeEvent event(part, changed);
      QAccessible::updateAccessibility(&event);
    }
  }
}

}  // namespace

void Voice::flush(Speech& speech, QWidget& canvas, QWidget& listener) {
  const QString news = toText(speech.news);
  if (listener_ != &listener) {
    if (listener_ != nullptr) listener_->setAccessibleName(ownName_);
    ownName_ = listener.accessibleName();
    listener_ = &listener;
  }
  const auto* button = qobject_cast<QAbstractButton*>(&listener);
  const QString own = button != nullptr ? button->text() : ownName_;
  const QString name = news.isEmpty() || own.isEmpty() ? news + own : news + " " + own;
  if (listener.accessibleName() != name) listener.setAccessibleName(name);
  if (QAccessible::isActive()) {
    reportChanges(told_, speech, canvas);
    if (speech.unsaid && listener.hasFocus() && listener.isEnabled()) {
      announce(canvas, news);
      speech.unsaid = false;
    }
  }
  told_ = speech;
}

void installVoices() { QAccessible::installFactory(makeVoice); }

}  // namespace mevracard
