#include "ui/main_window.h"

#include "game/grid.h"

namespace mevracard {

MainWindow::MainWindow(Desktop& d) : desktop(d) {
  designControls();
  designMenu();
}

double MainWindow::scaleFactor() const { return scaleOf(state.screenValue, state.screenHeight); }

void MainWindow::refresh() {
  for (std::size_t i = 0; i < cardCount; ++i) {
    a[i].caption = std::to_string(state.a[i]);
    b[i].caption = std::to_string(state.b[i]);
  }
  for (std::size_t i = 0; i < sisa.size(); ++i) sisa[i].caption = std::to_string(state.sisa[i]);
  form.settleFocus();
  authormevra.form.settleFocus();
  kalahmenang.form.settleFocus();
}

void MainWindow::present() {
  refresh();
  desktop.present();
}

void MainWindow::say(std::string_view text) {
  present();
  desktop.messageBox(text);
}

void MainWindow::report(std::string_view text) {
  present();
  desktop.reportError(text);
}

void MainWindow::showStatus(std::string_view text) { tanda.caption = text; }

void MainWindow::showTurn(std::string_view text) {
  tanda.caption = text;
  if (lblHow.visible) tanda.caption += ". Click Next";
}

}  // namespace mevracard
