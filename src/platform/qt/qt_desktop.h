#pragma once

#include <QAccessible>
#include <QTimer>
#include <memory>

#include "platform/desktop.h"
#include "platform/files/data_files.h"
#include "platform/qt/form_window.h"
#include "platform/qt/held_keys.h"
#include "platform/qt/message_box.h"
#include "platform/qt/pointer.h"
#include "platform/qt/system_end.h"
#include "platform/seeded_random.h"

namespace mevracard {

/// The real desktop, on the toolkit's windows. There must be a QApplication, which outlives it.
class QtDesktop : public Desktop {
 public:
  /// `dataDir` holds the data files; if it does not exist it is made, with the default files in it,
  /// as soon as the game has opened.
  QtDesktop(const std::filesystem::path& dataDir, const std::vector<DefaultFile>& defaults);
  ~QtDesktop() override;

  /// Runs the event loop until the program ends. Gives the program's exit status.
  int run();

  [[nodiscard]] const std::vector<std::unique_ptr<FormWindow>>& windows() const { return windows_; }

  void attach(std::vector<Form*> forms, std::function<void(const Event&)> handler) override;
  void present() override;
  void show(Form& form) override;
  void hide(Form& form) override;
  void messageBox(std::string_view text) override;
  void reportError(std::string_view text) override;
  void end() override;

  /// Also at the opening, when the toolkit does not know yet whether somebody listens.
  [[nodiscard]] bool speaks() const override { return opening_ || QAccessible::isActive(); }
  [[nodiscard]] int screenHeight() const override;
  [[nodiscard]] int twipsPerPixel() const override;
  void movePointer(int x, int y) override;
  [[nodiscard]] std::optional<ScreenPoint> centreOnScreen(const Box& control) const override;

  [[nodiscard]] std::string shortDate() const override;
  [[nodiscard]] ClockTime clock() const override;
  void seedRandom(double seed) override { random_.seed(seed); }
  [[nodiscard]] double random() override { return random_.next(); }

  [[nodiscard]] std::string readFile(std::string_view name) override { return files_.read(name); }
  void writeFile(std::string_view name, std::string_view text) override;
  [[nodiscard]] bool exchangeFile(std::string_view name, std::string_view expected,
                                  std::string_view text) override;
  void completeFiles() override { files_.complete(); }
  void openAddress(std::string_view address) override;

 private:
  class Busy;

  /// Hands an event to the program; false while it is still at another one or a box is open.
  bool deliver(const Event& event);
  void deliverDueTicks();
  void showBox(MessageBox::Kind kind, std::string_view text);
  FormWindow& windowOf(Form& form);
  void endBySystem();

  DataFiles files_;
  SeededRandom random_;
  std::vector<Form*> forms_;
  std::function<void(const Event&)> handler_;
  std::vector<std::unique_ptr<FormWindow>> windows_;  ///< the main window first
  std::unique_ptr<Pointer> pointer_;
  HeldKeys heldKeys_;
  QTimer dueTicks_;  ///< runs out as soon as the events at hand are done
  SystemEnd systemEnd_{[this] { endBySystem(); }};
  int busy_ = 0;
  bool opening_ = true;  ///< no box has opened yet
  bool endingBySystem_ = false;
  bool ended_ = false;
};

}  // namespace mevracard
