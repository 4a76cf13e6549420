#include "texts/tip_text.h"

#include <string_view>

namespace mevracard {

namespace {

std::string withNumbers(std::string_view sentence, int first, int second) {
  return std::string(sentence) + std::to_string(first) + " and " + std::to_string(second) + ".";
}

constexpr std::string_view newGameHint = "\rStart a new game by selecting the Menu button.";

}  // namespace

std::string tipHeading() { return "Tips for this situation:\r\r"; }

std::string generalTip(int first, int second) {
  return " You can discard your card either by double-clicking it"
         " or select by pushing the 'p' key then push the Enter or Space key to discard."
         " Computer will automatically react to your move."
         "\rYou can also make computer's cards invisible by changing the Player Level to Level 2."
         "\rThe card you can move is a card whose at least one of its numbers matches one of the "
         "active numbers on the table." +
         withNumbers(" The active numbers now are ", first, second);
}

std::string openingTip() { return "The 0-0 card has been automatically discarded. "; }

std::string openingAnsweredTip() {
  // QUIRK-16: written for the moment after the computer's answer, one second ahead of it.
  return "And computer has responded. It is now your turn to move your card.";
}

std::string sameNumberTip(int first, int second) {
  return " You can make Computer in difficult situation by imposing MEVRA, "
         "that is the situation when the two active numbers are the same." +
         // QUIRK-32: no blank between these two sentences.
         withNumbers("The active numbers now are ", first, second) +
         "\rPush the button corresponding to the number you want to be the active number."
         " Or alternatively you can directly push the number key on the keyboard."
         "\rYou can also cancel making MEVRA by pushing the Cancel button or directly pushing the "
         "Cancel key on the keyboard.";
}

std::string computerPassTip(int first, int second) {
  return " Computer has no card which matches the active numbers on the table." +
         withNumbers(" The active numbers are ", first, second);
}

std::string playerPassTip(int first, int second) {
  return " You have no card which matches the active numbers on the table." +
         withNumbers(" The active numbers are ", first, second);
}

std::string replayTip() { return "Computer has moved its card again as you passed. "; }

std::string playerWinsTip() {
  return "You have no more card left, so you win this game." + std::string(newGameHint);
}

std::string computerWinsTip() {
  return "Computer has no more card left, so Computer wins this game." + std::string(newGameHint);
}

std::string deadlockTip() {
  return " Both you and Computer have no matching card. This is a deadlock, and the game is over."
         " The winner is the one who has less sum of numbers of the cards left. But if this sum is "
         "equal, the one who has less pieces of card left is the winner.";
}

std::string demonstratedTip(int upper, int lower) {
  return "You have just discarded card " + std::to_string(upper) + "-" + std::to_string(lower) +
         ". Now computer's turn to discard his card.";
}

std::string computerMovedTip() { return "Computer has moved its card. "; }

}  // namespace mevracard
