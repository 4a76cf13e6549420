#include "platform/qt/qt_desktop.h"

#include <QApplication>
#include <QDateTime>
#include <QDesktopServices>
#include <QLocale>
#include <QScreen>
#include <QUrl>
#include <cmath>
#include <utility>

#include "platform/qt/focus_reports.h"
#include "platform/qt/look.h"
#include "platform/qt/menu.h"
#include "platform/qt/reduced_motion.h"
#include "platform/qt/spoken_tree.h"
#include "platform/view.h"

namespace mevracard {

/// While one lives no event reaches the program; what came due meanwhile follows after the last.
class QtDesktop::Busy {
 public:
  explicit Busy(QtDesktop& desktop) : desktop_(desktop) { ++desktop_.busy_; }
  ~Busy() {
    if (--desktop_.busy_ == 0) desktop_.dueTicks_.start(0);
  }
  Busy(const Busy&) = delete;
  Busy& operator=(const Busy&) = delete;

 private:
  QtDesktop& desktop_;
};

QtDesktop::QtDesktop(const std::filesystem::path& dataDir, const std::vector<DefaultFile>& defaults)
    : files_(dataDir, defaults) {
  applyLook();
  installSpokenTrees();
  holdBackFocusReports();
  // What the first picture does not need waits for a moment.
  constexpr int afterOpening = 250;  // ms
  QTimer::singleShot(afterOpening, &dueTicks_, [this] {
    applyIcon();
    askAboutMotion();
    try {
      files_.complete();
    } catch (const PlatformError&) {  // NOLINT(bugprone-empty-catch): told when the program asks
    }
  });
  QGuiApplication::setQuitOnLastWindowClosed(false);
  dueTicks_.setSingleShot(true);
  QObject::connect(&dueTicks_, &QTimer::timeout, &dueTicks_, [this] { deliverDueTicks(); });
}

QtDesktop::~QtDesktop() {
  pointer_.reset();
  // The main window comes last: it is the parent of the others.
  while (!windows_.empty()) windows_.pop_back();
}

int QtDesktop::run() { return ended_ ? 0 : QApplication::exec(); }

void QtDesktop::attach(std::vector<Form*> forms, std::function<void(const Event&)> handler) {
  forms_ = std::move(forms);
  handler_ = std::move(handler);
}

FormWindow& QtDesktop::windowOf(Form& form) {
  for (const auto& window : windows_) {
    if (&window->form() == &form) return *window;
  }
  const bool isMain = &form == forms_.front();
  FormWindow* mainWindow = isMain ? nullptr : &windowOf(*forms_.front());
  windows_.push_back(std::make_unique<FormWindow>(
      form, [this](const Event& event) { return deliver(event); }, mainWindow));
  if (isMain) pointer_ = std::make_unique<Pointer>(*windows_.back());
  return *windows_.back();
}

void QtDesktop::present() {
  for (const auto& window : windows_) {
    if (window->isVisible()) window->flush();
  }
}

void QtDesktop::show(Form& form) {
  form.visible = true;
  closeMenus();
  windowOf(form).open();
}

void QtDesktop::hide(Form& form) {
  form.visible = false;
  windowOf(form).hide();
}

bool QtDesktop::deliver(const Event& event) {
  if (busy_ > 0 || ended_) return false;
  if (endingBySystem_ && event.kind != EventKind::SystemEnd) return false;
  const Busy busy(*this);
  handler_(event);
  return true;
}

void QtDesktop::deliverDueTicks() {
  if (endingBySystem_) {
    deliver({EventKind::SystemEnd, forms_.front(), nullptr, nullptr, 0});
    return;
  }
  // A tick may open a window that was never shown before, which then joins the list.
  // NOLINTNEXTLINE(modernize-loop-convert)
  for (std::size_t i = 0; i < windows_.size(); ++i) windows_[i]->deliverDueTick();
}

void QtDesktop::messageBox(std::string_view text) { showBox(MessageBox::Kind::Message, text); }

void QtDesktop::reportError(std::string_view text) { showBox(MessageBox::Kind::Error, text); }

void QtDesktop::showBox(MessageBox::Kind kind, std::string_view text) {
  if (endingBySystem_) return;
  const Busy busy(*this);
  closeMenus();
  opening_ = false;
  QWidget* parent = QApplication::activeWindow();
  if (parent == nullptr && !windows_.empty()) parent = windows_.front().get();
  const QPoint middle = windows_.empty() ? QPoint() : windows_.front()->middle();
  MessageBox(parent, kind, toText(forms_.front()->caption), toText(text)).waitAt(middle);
  if (endingBySystem_) throw EndedBySystem();
}

void QtDesktop::end() {
  ended_ = true;
  for (const auto& window : windows_) window->hide();
  // Not quit(), which would ask each window first.
  QCoreApplication::exit();
}

void QtDesktop::endBySystem() {
  if (forms_.empty()) return;
  endingBySystem_ = true;
  if (QWidget* box = QApplication::activeModalWidget()) box->close();
  dueTicks_.start(0);
}

int QtDesktop::screenHeight() const {
  const int pixels = QGuiApplication::primaryScreen()->size().height();
  return pixels * twipsPerPixel();
}

int QtDesktop::twipsPerPixel() const { return static_cast<int>(twipsPerDesignPixel); }

void QtDesktop::movePointer(int x, int y) {
  if (pointer_ != nullptr) pointer_->moveTo({x, y});
}

std::optional<ScreenPoint> QtDesktop::centreOnScreen(const Box& control) const {
  for (const auto& window : windows_) {
    if (!window->isVisible() || !window->form().holds(control)) continue;
    const QPointF centre = QRectF(window->placeOnScreen(control)).center();
    return ScreenPoint{centre.x(), centre.y()};
  }
  return std::nullopt;
}

std::string QtDesktop::shortDate() const {
  // The year stands last, in four digits, whatever the player's habits: the deal reads it there.
  QString format = QLocale().dateFormat(QLocale::ShortFormat);
  while (format.endsWith('y')) format.chop(1);
  const bool yearWasLast = !format.contains('y') && !format.isEmpty() && !format.back().isLetter();
  const QString ownOrder = yearWasLast ? format + "yyyy" : "d/M/yyyy";
  return QLocale::c().toString(QDate::currentDate(), ownOrder).toStdString();
}

ClockTime QtDesktop::clock() const {
  const QTime now = QTime::currentTime();
  return {now.minute(), now.second()};
}

void QtDesktop::writeFile(std::string_view name, std::string_view text) {
  files_.write(name, text);
}

bool QtDesktop::exchangeFile(std::string_view name, std::string_view expected,
                             std::string_view text) {
  return files_.exchange(name, expected, text);
}

void QtDesktop::openAddress(std::string_view address) {
  if (QDesktopServices::openUrl(QUrl(toText(address)))) return;
  throw PlatformError(std::string(address) + " cannot be opened: no web browser was found");
}

}  // namespace mevracard
