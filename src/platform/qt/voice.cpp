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

/// The canvas: the news of now and of before, the lists, and then its widgets.
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
  QAccessibleInterface* nextNews() { return ownChild(newsNow_ = 1 - newsNow_); }
  QAccessibleInterface* item(Box* control) const;

  int childCount() const override { return ownCount() + QAccessibleWidget::childCount(); }
  QAccessibleInterface* child(int index) const override {
    const bool own = index >= 0 && index < ownCount();
    return own ? ownChild(index) : QAccessibleWidget::child(index - ownCount());
  }
  int indexOfChild(const QAccessibleInterface* part) const override {
    return indexOf(*this, part, childCount());
  }
  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.focusable = true;
    return state;
  }

 private:
  [[nodiscard]] int ownCount() const { return firstList + static_cast<int>(speech().lists.size()); }
  QAccessibleInterface* ownChild(int index) const;
  QAccessibleInterface* kept(int index, const Box* control, auto make) const {
    QAccessible::Id& id = ids_[{index, control}];
    if (id == 0) id = QAccessible::registerAccessibleInterface(make());
    return QAccessible::accessibleInterface(id);
  }

  Canvas& canvas_;
  int newsNow_ = 0;
  mutable std::map<std::pair<int, const Box*>, QAccessible::Id> ids_;
};

/// What the parts of the canvas have in common: they are there as long as it is.
class Part : public QAccessibleInterface {
 public:
  explicit Part(const SpokenCanvas& canvas) : canvas_(canvas) {}
  bool isValid() const override { return true; }
  QObject* object() const override { return nullptr; }
  QWindow* window() const override { return canvas_.window(); }
  QAccessible::Role role() const override { return QAccessible::ListItem; }
  QAccessible::State state() const override { return {}; }
  QRect rect() const override { return canvas_.rect(); }
  QAccessibleInterface* parent() const override {
    return QAccessible::queryAccessibleInterface(&canvas_.canvas());
  }
  int childCount() const override { return 0; }
  QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
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
    return kind == QAccessible::Name && isValid() ? toText(words()) : QString();
  }

 protected:
  [[nodiscard]] const SpokenCanvas& canvas() const { return canvas_; }
  [[nodiscard]] virtual std::string_view words() const = 0;

 private:
  const SpokenCanvas& canvas_;
};

/// The news. A screen reader says what the accessible focus comes to, and nothing that changes
/// where it is: so each time it goes from one such part to the other, while the keyboard stays.
class NewsPart final : public Part {
 public:
  NewsPart(const SpokenCanvas& canvas, int index) : Part(canvas), index_(index) {}
  QAccessible::State state() const override {
    QAccessible::State state;
    state.focusable = true;
    state.focused = canvas().isNewsOfNow(index_);
    state.invisible = !state.focused;
    return state;
  }

 private:
  [[nodiscard]] std::string_view words() const override {
    return canvas().isNewsOfNow(index_) ? std::string_view(canvas().speech().news) : "";
  }

  int index_;
};

class ListPart final : public Part {
 public:
  ListPart(const SpokenCanvas& canvas, int index)
      : Part(canvas), index_(static_cast<std::size_t>(index)) {}
  bool isValid() const override { return index_ < canvas().speech().lists.size(); }
  QAccessible::Role role() const override { return QAccessible::List; }
  int childCount() const override { return isValid() ? static_cast<int>(list().items.size()) : 0; }
  QAccessibleInterface* child(int index) const override {
    if (index < 0 || index >= childCount()) return nullptr;
    return canvas().item(list().items[static_cast<std::size_t>(index)].control);
  }

 private:
  [[nodiscard]] const SpokenList& list() const { return canvas().speech().lists[index_]; }
  [[nodiscard]] std::string_view words() const override { return list().words; }

  std::size_t index_;
};

class ItemPart final : public Part, public QAccessibleActionInterface {
 public:
  ItemPart(const SpokenCanvas& canvas, Box& control) : Part(canvas), control_(control) {}
  bool isValid() const override { return item() != nullptr; }
  QAccessible::State state() const override {
    QAccessible::State state;
    state.invisible = !isValid();
    state.selectable = answersPress();
    state.selected = isValid() && item()->selected;
    return state;
  }
  QRect rect() const override {
    const QRect place = canvas().canvas().placeOf(control_);
    return {canvas().canvas().mapToGlobal(place.topLeft()), place.size()};
  }
  QAccessibleInterface* parent() const override {
    QAccessibleInterface* whole = Part::parent();
    const int count = firstList + static_cast<int>(canvas().speech().lists.size());
    for (int i = firstList; i < count; ++i) {
      if (whole->child(i)->indexOfChild(this) >= 0) return whole->child(i);
    }
    return whole;
  }
  void* interface_cast(QAccessible::InterfaceType type) override {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                : nullptr;
  }
  QStringList actionNames() const override {
    return answersPress() ? QStringList(pressAction()) : QStringList();
  }
  void doAction(const QString& name) override {
    if (!answersPress() || name != pressAction()) return;
    // Who asked gets an answer first: a box may open, and stay.
    Canvas& whole = canvas().canvas();
    QTimer::singleShot(0, &whole, [&whole, &control = control_] { whole.press(control); });
  }
  QStringList keyBindingsForAction(const QString& /*name*/) const override { return {}; }

 private:
  [[nodiscard]] const SpokenItem* item() const { return itemOf(canvas().speech(), &control_); }
  [[nodiscard]] bool answersPress() const { return isValid() && item()->answersPress; }
  [[nodiscard]] std::string_view words() const override { return item()->words; }

  Box& control_;
};

QAccessibleInterface* SpokenCanvas::ownChild(int index) const {
  return kept(index, nullptr, [&]() -> Part* {
    if (index < firstList) return new NewsPart(*this, index);
    return new ListPart(*this, index - firstList);
  });
}

QAccessibleInterface* SpokenCanvas::item(Box* control) const {
  return kept(0, control, [&] { return new ItemPart(*this, *control); });
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

void Voice::flush(const Speech& speech, QWidget& canvas, QWidget& listener) {
  const QString news = toText(speech.news);
  QString name = news;
  if (const auto* button = qobject_cast<QAbstractButton*>(&listener)) name += " " + button->text();
  if (listener_ != &listener && listener_ != nullptr) listener_->setAccessibleName({});
  listener_ = &listener;
  if (listener.accessibleName() != name) listener.setAccessibleName(name);
  if (QAccessible::isActive()) {
    reportChanges(told_, speech, canvas);
    if (speech.news != told_.news && listener.hasFocus() && listener.isEnabled())
      announce(canvas, news);
  }
  told_ = speech;
}

void installVoices() { QAccessible::installFactory(makeVoice); }

}  // namespace mevracard
