#include "play/status.h"

#include "ui/status_text.h"

namespace mevracard {

void announce(MainWindow& w, Announcement announcement) {
  w.state.announcement = announcement;
  w.status.caption = statusText(announcement, w.state.tutorial.running);
}

void bringStatusToFront(MainWindow& w) {
  w.status.layer = Layer::Panels;
  w.form.bringToFront(w.status);
}

void sendStatusToBack(MainWindow& w) {
  w.status.layer = Layer::Table;
  w.form.sendToBack(w.status);
}

void showStatusInFront(MainWindow& w) {
  bringStatusToFront(w);
  w.status.visible = true;
}

}  // namespace mevracard
