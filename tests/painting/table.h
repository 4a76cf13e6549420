#pragma once

#include <QImage>
#include <QTemporaryDir>

#include "app/program.h"
#include "platform/qt/qt_desktop.h"

namespace mevracard {

/// A game in its real windows, without a display. Events come from the test alone, and every box is
/// answered at once.
class Table {
 public:
  /// `settings` is the line of the settings file.
  explicit Table(const std::string& settings = "1/1/99");

  void choose(MenuEntry& entry) { program_.handle({EventKind::Menu, &w.form, nullptr, &entry, 0}); }
  void press(Form& form, Control& control) {
    program_.handle({EventKind::Click, &form, &control, nullptr, 0});
  }
  void doubleClick(Control& control) {
    program_.handle({EventKind::DoubleClick, &w.form, &control, nullptr, 0});
  }
  /// Lets the computer answer.
  void answer();
  [[nodiscard]] FormWindow& windowOf(const Form& form) const;
  /// What the form's canvas shows once its data have been taken over and no card glides any more.
  [[nodiscard]] QImage shown(const Form& form);
  /// The same, with everything painted anew.
  [[nodiscard]] QImage afresh(const Form& form);

 private:
  class QuietDesktop final : public QtDesktop {
   public:
    using QtDesktop::QtDesktop;
    void seedRandom(double /*seed*/) override { QtDesktop::seedRandom(3); }
    void messageBox(std::string_view /*text*/) override {}
  };

  QTemporaryDir files_;
  QuietDesktop desktop_;
  Program program_;

 public:
  MainWindow& w;
};

}  // namespace mevracard
