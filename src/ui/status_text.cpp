#include "ui/status_text.h"

#include "texts/messages.h"

namespace mevracard {

namespace {

std::string turnText(std::string_view turn, bool tutorialRuns) {
  return std::string(turn) + (tutorialRuns ? std::string(clickNextText) : "");
}

}  // namespace

std::string statusText(Announcement announcement, bool tutorialRuns) {
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

}  // namespace mevracard
