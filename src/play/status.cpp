#include "play/status.h"

#include "texts/messages.h"

namespace mevracard {

namespace {

std::string turnText(std::string_view turn, bool tutorialRuns) {
  return std::string(turn) + (tutorialRuns ? std::string(clickNextText) : "");
}

std::string textOf(Announcement announcement, bool tutorialRuns) {
  switch (announcement) {
    case Announcement::None:
      break;
    case Announcement::YourTurn:
      return turnText(yourTurnText, tutorialRuns);
    case Announcement::ComputersTurn:
      return turnText(computersTurnText, tutorialRuns);
    case Announcement::ChooseOne:
      return std::string(chooseOneText);
    case Announcement::ComputerPasses:
      return std::string(computerPassesText);
    case Announcement::YouPass:
      return std::string(youPassText);
    case Announcement::ComputersTurnAgain:
      return std::string(tutorialRuns ? clickNextAgainText : waitAgainText);
  }
  return "";
}

}  // namespace

void announce(MainWindow& w, Announcement announcement) {
  w.state.announcement = announcement;
  w.status.caption = textOf(announcement, w.state.tutorial.running);
}

void bringStatusToFront(MainWindow& w) {
  w.status.layer = Layer::Panels;
  w.form.bringToFront(w.status);
}

void sendStatusToBack(MainWindow& w) {
  w.status.layer = Layer::Table;
  w.form.sendToBack(w.status);
}

void raiseStatus(MainWindow& w) {
  bringStatusToFront(w);
  w.status.visible = true;
}

}  // namespace mevracard
