#include "platform/qt/spoken_tree.h"

#include <QAccessibleWidget>
#include <QApplication>
#include <QMainWindow>
#include <QTextEdit>
#include <QTimer>
#include <algorithm>
#include <map>
#include <utility>

#include "platform/qt/canvas.h"
#include "platform/qt/child_events.h"
#include "platform/qt/look.h"
#include "platform/qt/spoken_menu.h"

namespace mevracard {

namespace {

int indexOf(const QAccessibleInterface& parent, const QAccessibleInterface* child, int count) {
  for (int i = 0; i < count; ++i) {
    if (parent.child(i) == child) return i;
  }
  return -1;
}

const SpokenItem* itemOf(const SpokenList& list, const Box* control) {
  const auto found = std::find_if(list.items.begin(), list.items.end(),
                                  [&](const SpokenItem& item) { return item.control == control; });
  return found == list.items.end() ? nullptr : &*found;
}

/// The canvas: the lists, and then its widgets.
class SpokenCanvas final : public QAccessibleWidget {
 public:
  explicit SpokenCanvas(Canvas& canvas)
      : QAccessibleWidget(&canvas, QAccessible::Client), canvas_(canvas) {}
  ~SpokenCanvas() override {
    for (const auto& [key, id] : ids_) QAccessible::deleteAccessibleInterface(id);
  }

  [[nodiscard]] Canvas& canvas() const { return canvas_; }
  [[nodiscard]] const std::vector<SpokenList>& lists() const { return canvas_.speech().lists; }
  [[nodiscard]] bool takesEvents() const {
    return canvas_.isEnabled() && QApplication::activeModalWidget() == nullptr;
  }
  /// The part for a list, or for an item of it. Made when it is first asked for, and kept:
  /// assistive technology knows it from then on.
  QAccessibleInterface* part(int list, Box* control = nullptr) const;

  int childCount() const override { return listCount() + QAccessibleWidget::childCount(); }
  QAccessibleInterface* child(int index) const override {
    const bool isList = index >= 0 && index < listCount();
    return isList ? part(index) : QAccessibleWidget::child(index - listCount());
  }
  int indexOfChild(const QAccessibleInterface* part) const override {
    return indexOf(*this, part, childCount());
  }
  QAccessibleInterface* childAt(int x, int y) const override {
    for (int i = 0; i < childCount(); ++i) {
      QAccessibleInterface* part = child(i);
      const bool hit = i < listCount() ? part->childAt(x, y) != nullptr
                                       : !part->state().invisible && part->rect().contains(x, y);
      if (hit) return part;
    }
    return nullptr;
  }
  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.focusable = true;
    // A place for the news has it in its stead.
    if (canvas_.focusProxy() != nullptr) state.focusable = state.focused = false;
    return state;
  }
  QString text(QAccessible::Text kind) const override {
    const bool isFocus = canvas_.focusProxy() == nullptr;
    return kind == QAccessible::Name && isFocus ? canvas_.window()->windowTitle() : QString();
  }

 private:
  [[nodiscard]] int listCount() const { return static_cast<int>(lists().size()); }

  Canvas& canvas_;
  mutable std::map<std::pair<int, const Box*>, QAccessible::Id> ids_;
};

/// A list, or an item of it if it has a control. It is there as long as the canvas.
class Part final : public QAccessibleInterface, public QAccessibleActionInterface {
 public:
  Part(const SpokenCanvas& whole, int list, Box* control)
      : whole_(whole), index_(static_cast<std::size_t>(list)), control_(control) {}

  /// Also when the item has gone: who asks for it then is told that it is not seen.
  bool isValid() const override { return true; }
  QObject* object() const override { return nullptr; }
  QWindow* window() const override { return whole_.window(); }
  QAccessible::Role role() const override {
    return control_ == nullptr ? QAccessible::List : QAccessible::ListItem;
  }
  QAccessible::State state() const override {
    QAccessible::State state;
    state.invisible = hasGone() || !whole_.canvas().isVisible();
    state.disabled = !whole_.takesEvents();
    state.selectable = answersPress();
    state.selected = control_ != nullptr && item() != nullptr && item()->selected;
    return state;
  }
  QRect rect() const override {
    if (control_ == nullptr) return whole_.rect();
    const QRect place = whole_.canvas().placeOf(*control_);
    return {whole_.canvas().mapToGlobal(place.topLeft()), place.size()};
  }

  QAccessibleInterface* parent() const override {
    const int list = static_cast<int>(index_);
    return control_ != nullptr ? whole_.part(list)
                               : QAccessible::queryAccessibleInterface(&whole_.canvas());
  }
  int childCount() const override {
    return control_ == nullptr ? static_cast<int>(list().items.size()) : 0;
  }
  QAccessibleInterface* child(int index) const override {
    if (index < 0 || index >= childCount()) return nullptr;
    return whole_.part(static_cast<int>(index_),
                       list().items[static_cast<std::size_t>(index)].control);
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
    if (kind != QAccessible::Name || hasGone()) return {};
    return toText(control_ == nullptr ? list().words : item()->words);
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
    Canvas& canvas = whole_.canvas();
    QTimer::singleShot(0, &canvas, [&canvas, &control = *control_] { canvas.press(control); });
  }
  QStringList keyBindingsForAction(const QString& /*name*/) const override { return {}; }

 private:
  [[nodiscard]] const SpokenList& list() const { return whole_.lists().at(index_); }
  [[nodiscard]] const SpokenItem* item() const { return itemOf(list(), control_); }
  [[nodiscard]] bool hasGone() const { return control_ != nullptr && item() == nullptr; }
  [[nodiscard]] bool answersPress() const {
    return whole_.takesEvents() && control_ != nullptr && !hasGone() && item()->answersPress;
  }

  const SpokenCanvas& whole_;
  std::size_t index_;
  Box* control_;
};

QAccessibleInterface* SpokenCanvas::part(int list, Box* control) const {
  QAccessible::Id& id = ids_[{list, control}];
  if (id == 0) id = QAccessible::registerAccessibleInterface(new Part(*this, list, control));
  return QAccessible::accessibleInterface(id);
}

/// A place for news. A screen reader says nothing but its words, and counts none.
class SpokenPlace final : public QAccessibleWidget {
 public:
  explicit SpokenPlace(NewsPlace& place) : QAccessibleWidget(&place, QAccessible::Client) {}

  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.focusable = true;
    if (QApplication::activePopupWidget() != nullptr) state.focused = false;  // a menu has it
    if (widget()->parentWidget()->focusProxy() != widget()) state.invisible = true;
    return state;
  }
};

/// A text. Its words stand in a list already.
class SpokenText final : public QAccessibleWidget {
 public:
  explicit SpokenText(QTextEdit& text) : QAccessibleWidget(&text, QAccessible::Client) {}

  int childCount() const override { return 0; }
  QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
  QAccessible::State state() const override {
    QAccessible::State state;
    state.invisible = true;
    return state;
  }
};

QAccessibleInterface* makeTree(const QString& /*type*/, QObject* object) {
  if (auto* canvas = dynamic_cast<Canvas*>(object)) return new SpokenCanvas(*canvas);
  if (auto* place = dynamic_cast<NewsPlace*>(object)) return new SpokenPlace(*place);
  if (auto* text = qobject_cast<QTextEdit*>(object)) return new SpokenText(*text);
  if (auto* menu = spokenMenu(object)) return menu;
  // The windows beside the main one look like any other to the toolkit.
  auto* window = qobject_cast<QMainWindow*>(object);
  const bool dialog = window != nullptr && window->windowType() == Qt::Dialog;
  return dialog ? new QAccessibleWidget(window, QAccessible::Dialog) : nullptr;
}

using Known = std::vector<Box*>;

Known controlsOf(const SpokenList& list) {
  Known controls;
  for (const SpokenItem& item : list.items) controls.push_back(item.control);
  return controls;
}

/// Tells how the items of a list have come and gone, one after the other: each index is right when
/// all that was told before has been done.
void reportItems(const SpokenCanvas& tree, int index, Known known, const Known& now) {
  const QAccessibleInterface& list = *tree.part(index);
  const auto remove = [&](Known::iterator at) {
    const auto place = static_cast<int>(at - known.begin());
    reportChild(ChildEvent::Removed, list, *tree.part(index, *at), place);
    known.erase(at);
  };
  for (std::size_t i = known.size(); i-- > 0;) {
    const auto at = known.begin() + static_cast<std::ptrdiff_t>(i);
    if (std::find(now.begin(), now.end(), *at) == now.end()) remove(at);
  }
  for (std::size_t i = 0; i < now.size(); ++i) {
    const auto here = static_cast<std::ptrdiff_t>(i);
    const auto at = std::find(known.begin() + here, known.end(), now[i]);
    if (at == known.begin() + here && at != known.end()) continue;
    if (at != known.end()) remove(at);
    known.insert(known.begin() + here, now[i]);
    reportChild(ChildEvent::Added, list, *tree.part(index, now[i]), static_cast<int>(i));
  }
}

void reportItem(QAccessibleInterface& part, const SpokenItem& before, const SpokenItem& now) {
  if (before.words != now.words) {
    QAccessibleEvent event(&part, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&event);
  }
  if (before.selected != now.selected) {
    QAccessible::State changed;
    changed.selected = true;
    QAccessibleStateChangeEvent event(&part, changed);
    QAccessible::updateAccessibility(&event);
  }
}

}  // namespace

NewsPlace::NewsPlace(QWidget& canvas) : QWidget(&canvas) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  resize(1, 1);
  show();
}

void installSpokenTrees() { QAccessible::installFactory(makeTree); }

void reportChanges(const std::vector<SpokenList>& before, const std::vector<SpokenList>& now,
                   QWidget& canvas) {
  auto* tree = dynamic_cast<SpokenCanvas*>(QAccessible::queryAccessibleInterface(&canvas));
  if (tree == nullptr) return;
  for (std::size_t i = 0; i < now.size(); ++i) {
    const SpokenList& list = now[i];
    const SpokenList& known = i < before.size() ? before[i] : SpokenList();
    const int index = static_cast<int>(i);
    reportItems(*tree, index, controlsOf(known), controlsOf(list));
    for (const SpokenItem& item : list.items) {
      const SpokenItem* old = itemOf(known, item.control);
      if (old != nullptr) reportItem(*tree->part(index, item.control), *old, item);
    }
  }
}

}  // namespace mevracard
