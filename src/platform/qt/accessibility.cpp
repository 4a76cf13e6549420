#include "platform/qt/accessibility.h"

#include <QAccessibleWidget>

#include "platform/qt/label_widget.h"

namespace mevracard {

namespace {

/// A label that can be followed.
class LinkVoice final : public QAccessibleWidget {
 public:
  explicit LinkVoice(LabelWidget& label)
      : QAccessibleWidget(&label, QAccessible::Link), label_(label) {}

  [[nodiscard]] QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Name ? label_.text() : QAccessibleWidget::text(kind);
  }
  [[nodiscard]] QStringList actionNames() const override {
    return QStringList{pressAction()} + QAccessibleWidget::actionNames();
  }
  void doAction(const QString& action) override {
    if (action == pressAction()) {
      label_.press();
    } else {
      QAccessibleWidget::doAction(action);
    }
  }

 private:
  LabelWidget& label_;
};

QAccessibleInterface* voiceOf(const QString& /*className*/, QObject* object) {
  auto* label = dynamic_cast<LabelWidget*>(object);
  return label != nullptr && label->isLink() ? new LinkVoice(*label) : nullptr;
}

}  // namespace

void describeControls() { QAccessible::installFactory(voiceOf); }

}  // namespace mevracard
