#include "platform/qt/voice.h"

#include <QAbstractButton>
#include <QAccessibleWidget>
#include <algorithm>
#include <unordered_map>
#include <utility>

#include "platform/qt/canvas.h"
#include "platform/qt/look.h"

namespace mevracard {

namespace {

const SpokenItem* itemOf(const Speech& speech, const Box* control) {
  for (const SpokenList& list : speech.lists) {
    for (const SpokenItem& item : list.items) {
      if (item.control == control) return &item;
    }
  }
  return nullptr;
}

QAccessibleInterface* keep(QAccessible::Id& id, auto make) {
  if (id == 0) id = QAccessible::registerAccessibleInterface(make());
  return QAccessible::accessibleInterface(id);
}

/// The canvas: lists, and after them the news of now and of before, and its widgets.
class SpokenCanvas final : public QAccessibleWidget {
 public:
  explicit SpokenCanvas(Canvas& canvas)
      : QAccessibleWidget(&canvas, QAccessible::Canvas), canvas_(canvas) {}

  [[nodiscard]] Canvas& canvas() const { return canvas_; }
  [[nodiscard]] const std::vector<SpokenList>& lists() const { return canvas_.speech().lists; }
  QAccessibleInterface* listAt(std::size_t index) const;
  QAccessibleInterface* itemAt(Box* control) const;
  QAccessibleInterface* newsAt(std::size_t index) const;
  /// Gives the news another place, so that the accessible focus can move there.
  QAccessibleInterface* nextNews() { return newsAt(newsNow_ = 1 - newsNow_); }
  [[nodiscard]] bool isNewsOfNow(std::size_t index) const { return index == newsNow_; }

  int childCount() const override { return ownCount() + QAccessibleWidget::childCount(); }
  QAccessibleInterface* child(int index) const override {
    if (index < 0 || index >= ownCount()) return QAccessibleWidget::child(index - ownCount());
    const auto own = static_cast<std::size_t>(index);
    return own < lists().size() ? listAt(own) : newsAt(own - lists().size());
  }
  int indexOfChild(const QAccessibleInterface* part) const override {
    for (int i = 0; i < ownCount(); ++i) {
      if (child(i) == part) return i;
    }
    const int widget = QAccessibleWidget::indexOfChild(part);
    return widget < 0 ? widget : widget + ownCount();
  }
  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.focusable = true;
    return state;
  }

 protected:
  ~SpokenCanvas() override {
    for (const auto& [index, id] : listIds_) QAccessible::deleteAccessibleInterface(id);
    for (const QAccessible::Id id : newsIds_) QAccessible::deleteAccessibleInterface(id);
    for (const auto& [control, id] : itemIds_) QAccessible::deleteAccessibleInterface(id);
  }

 private:
  [[nodiscard]] int ownCount() const { return static_cast<int>(lists().size() + newsIds_.size()); }

  Canvas& canvas_;
  std::size_t newsNow_ = 0;
  mutable std::array<QAccessible::Id, 2> newsIds_{};
  mutable std::unordered_map<std::size_t, QAccessible::Id> listIds_;
  mutable std::unordered_map<const Box*, QAccessible::Id> itemIds_;
};

/// What the parts of the canvas have in common: they are there as long as it is.
class Part : public QAccessibleInterface {
 public:
  explicit Part(const SpokenCanvas& canvas) : canvas_(canvas) {}
  QObject* object() const override { return nullptr; }
  QWindow* window() const override { return canvas_.window(); }
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
  [[nodiscard]] virtual const std::string& words() const = 0;

 private:
  const SpokenCanvas& canvas_;
};

class ListPart final : public Part {
 public:
  ListPart(const SpokenCanvas& canvas, std::size_t index) : Part(canvas), index_(index) {}
  bool isValid() const override { return index_ < canvas().lists().size(); }
  QAccessible::Role role() const override { return QAccessible::List; }
  QAccessible::State state() const override { return {}; }
  QAccessibleInterface* parent() const override {
    return QAccessible::queryAccessibleInterface(&canvas().canvas());
  }
  QRect rect() const override {
    QRect all;
    for (int i = 0; i < childCount(); ++i) all |= child(i)->rect();
    return all;
  }
  int childCount() const override { return isValid() ? static_cast<int>(list().items.size()) : 0; }
  QAccessibleInterface* child(int index) const override {
    if (index < 0 || index >= childCount()) return nullptr;
    return canvas().itemAt(list().items[static_cast<std::size_t>(index)].control);
  }
  int indexOfChild(const QAccessibleInterface* part) const override {
    for (int i = 0; i < childCount(); ++i) {
      if (child(i) == part) return i;
    }
    return -1;
  }

 private:
  [[nodiscard]] const SpokenList& list() const { return canvas().lists()[index_]; }
  [[nodiscard]] const std::string& words() const override { return list().words; }

  std::size_t index_;
};

class ItemPart final : public Part, public QAccessibleActionInterface {
 public:
  ItemPart(const SpokenCanvas& canvas, Box& control) : Part(canvas), control_(control) {}
  bool isValid() const override { return item() != nullptr; }
  QAccessible::Role role() const override { return QAccessible::ListItem; }
  QAccessible::State state() const override {
    QAccessible::State state;
    state.invisible = !isValid();
    state.selectable = answersPress();
    state.selected = isValid() && item()->selected;
    return state;
  }
  QAccessibleInterface* parent() const override {
    for (std::size_t i = 0; i < canvas().lists().size(); ++i) {
      QAccessibleInterface* list = canvas().listAt(i);
      if (list->indexOfChild(this) >= 0) return list;
    }
    return QAccessible::queryAccessibleInterface(&canvas().canvas());
  }
  QRect rect() const override {
    const QRect place = canvas().canvas().placeOf(control_);
    return {canvas().canvas().mapToGlobal(place.topLeft()), place.size()};
  }
  int childCount() const override { return 0; }
  QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
  int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
  void* interface_cast(QAccessible::InterfaceType type) override {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                : nullptr;
  }
  QStringList actionNames() const override {
    return answersPress() ? QStringList(pressAction()) : QStringList();
  }
  void doAction(const QString& name) override {
    if (answersPress() && name == pressAction()) canvas().canvas().press(control_);
  }
  QStringList keyBindingsForAction(const QString& /*name*/) const override { return {}; }

 private:
  [[nodiscard]] const SpokenItem* item() const {
    return itemOf(canvas().canvas().speech(), &control_);
  }
  [[nodiscard]] bool answersPress() const { return isValid() && item()->answersPress; }
  [[nodiscard]] const std::string& words() const override { return item()->words; }

  Box& control_;
};

/// The news. A screen reader says what the accessible focus comes to, and nothing that changes
/// where it is: so each time it goes from one such part to the other, while the keyboard stays.
class NewsPart final : public Part {
 public:
  NewsPart(const SpokenCanvas& canvas, std::size_t index) : Part(canvas), index_(index) {}
  bool isValid() const override { return true; }
  QAccessible::Role role() const override { return QAccessible::StaticText; }
  QAccessible::State state() const override {
    QAccessible::State state;
    state.focusable = true;
    state.focused = canvas().isNewsOfNow(index_);
    state.invisible = !state.focused;
    return state;
  }
  QAccessibleInterface* parent() const override {
    return QAccessible::queryAccessibleInterface(&canvas().canvas());
  }
  QRect rect() const override { return canvas().rect(); }
  int childCount() const override { return 0; }
  QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
  int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }

 private:
  [[nodiscard]] const std::string& words() const override {
    static const std::string silence;
    return canvas().isNewsOfNow(index_) ? canvas().canvas().speech().news : silence;
  }

  std::size_t index_;
};

QAccessibleInterface* SpokenCanvas::newsAt(std::size_t index) const {
  return keep(newsIds_[index], [&] { return new NewsPart(*this, index); });
}

QAccessibleInterface* SpokenCanvas::listAt(std::size_t index) const {
  return keep(listIds_[index], [&] { return new ListPart(*this, index); });
}

QAccessibleInterface* SpokenCanvas::itemAt(Box* control) const {
  return keep(itemIds_[control], [&] { return new ItemPart(*this, *control); });
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
      QAccessibleInterface* part = tree->itemAt(item.control);
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
