#include "play/size_panel.h"

#include "play/saved_settings.h"
#include "play/status.h"

namespace mevracard {

void openSizePanel(MainWindow& w) {
  w.state.sizePanelOpen = true;
  w.sizePanel.show(true);
  if (w.desktop.speaks()) w.form.giveFocus(w.sizePanel.bar);  // who does not see it is taken there
  w.menu.howToPlay.enabled = false;
  sendStatusToBack(w);
}

void closeSizePanel(MainWindow& w) {
  w.state.sizePanelOpen = false;
  w.sizePanel.show(false);
  w.menu.howToPlay.enabled = true;
  // QUIRK-37: a size takes effect at once but is saved when the panel closes, or along with a
  // level. One would expect it to last; with the panel left open the next start shows the old size.
  saveSettings(w);
}

}  // namespace mevracard
