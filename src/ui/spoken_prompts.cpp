#include "ui/spoken_prompts.h"

#include "game/rules.h"
#include "game/scoring.h"
#include "ui/spoken_cards.h"
#include "ui/status_text.h"

namespace mevracard {

namespace {

std::string sumWords(const GameState& s, Side side) {
  return std::to_string(leftover(s, side).sum) + ". ";
}

/// Of a card that fits there.
std::string fitWords(const GameState& s, End end) {
  const std::string number = std::to_string(s.openNumber[end]);
  return "Its " + number + " fits the " + number + " at " + nameOf(end) + ". ";
}

std::string turnPrompt(const GameState& s) {
  const int slot = s.selectedCard;
  if (slot >= handSize || !s.card(slot).held) {
    return turnWords(s) + "Press P to select a card, then Enter to lay it. ";
  }
  const std::string card = cardInHand(s, slot) + ". Press ";
  return card +
         (fits(s, slot) ? "Enter to lay it, or P for another card. " : "P for another card. ");
}

}  // namespace

std::string turnWords(const GameState& s) {
  const std::string text = statusText(s.announcement, s.tutorial.running);
  return text + (text.ends_with('!') ? " " : ". ");
}

std::string standing(const GameState& s) {
  if (s.choiceOpen) return choiceWords(s);
  return s.gameOver ? "The game is over. " : turnWords(s);
}

std::string choiceWords(const GameState& s) {
  return "Mevra " + std::to_string(s.openNumber[End::RightTop]) + " or Mevra " +
         std::to_string(s.openNumber[End::LeftBottom]) + "? Type the number, or Escape. ";
}

std::string passWords() {
  return "You pass: no card of yours fits. After OK the computer moves again. ";
}

std::string shownCard(const GameState& s) {
  const Card& card = s.card(s.playCard);
  const std::string shown = "Shown: " + nameOf(card) + ". ";
  for (const End end : {End::RightTop, End::LeftBottom}) {
    if (card.bears(s.openNumber[end])) return shown + fitWords(s, end);
  }
  return shown + "It does not fit. ";
}

std::string demonstrationBegins() {
  return "The demonstration begins: Next shows one move after the other, Stop ends it. ";
}

std::string demonstrationEnds() { return "The demonstration is over. "; }

std::string panelWords(const GameState& s) {
  return "Size of the table: " + std::to_string(s.tableSize) +
         ". The arrow keys change it, Escape closes the panel. ";
}

std::string resultWords(const GameState& s) {
  return (s.deadlock ? "DEADLOCK! " : "") + ("You Have: " + sumWords(s, Side::Player)) +
         "Computer Has: " + sumWords(s, Side::Computer) +
         (s.result == GameResult::Won ? "You win. " : "You lose. ");
}

std::string prompt(const GameState& s) {
  if (s.choiceOpen) return choiceWords(s);
  if (s.sizePanelOpen) return panelWords(s);
  if (s.gameOver) return "The game is over. F10 opens the menu: File, New Game. ";
  if (s.demo.busy) return shownCard(s);
  if (s.tutorial.running) return turnWords(s) + "Enter presses Next, Tab goes to Stop. ";
  return turnPrompt(s);
}

}  // namespace mevracard
