#include "ui/spoken_prompts.h"

#include "game/rules.h"
#include "game/scoring.h"
#include "ui/spoken_cards.h"
#include "ui/status_text.h"

namespace mevracard {

namespace {

std::string sumWords(const Game& game, Side side) {
  return std::to_string(leftover(game, side).sum) + ". ";
}

/// Of a card that fits there.
std::string fitWords(const Chain& chain, End end) {
  const std::string number = std::to_string(chain.openNumber[end]);
  return "Its " + number + " fits the " + number + " at " + nameOf(end) + ". ";
}

std::string turnPrompt(const Game& game, const TableState& state) {
  const int slot = state.selectedCard;
  if (slot >= handSize || !game.card(slot).held) {
    return turnWords(state) + "Press P to select a card, then Enter to lay it. ";
  }
  const std::string card = cardInHand(game, slot) + ". Press ";
  return card +
         (fits(game, slot) ? "Enter to lay it, or P for another card. " : "P for another card. ");
}

}  // namespace

std::string turnWords(const TableState& state) {
  const std::string text = statusText(state.announcement, state.tutorial.running);
  return text + (text.ends_with('!') ? " " : ". ");
}

std::string standing(const Game& game, const TableState& state) {
  if (state.choiceOpen) return choiceWords(game, state);
  return game.ending.over ? "The game is over. " : turnWords(state);
}

std::string choiceWords(const Game& game, const TableState& state) {
  return cardInHand(game, state.choiceCard) + ". Mevra " +
         std::to_string(game.chain.openNumber[End::RightTop]) + " or Mevra " +
         std::to_string(game.chain.openNumber[End::LeftBottom]) + "? Type the number, or Escape. ";
}

std::string passWords(const TableState& state) {
  return std::string("You pass: no card of yours fits. Enter presses OK, then ") +
         (state.tutorial.running ? "Next shows the computer's move. "
                                 : "the computer moves again. ");
}

std::string shownCard(const Game& game, int slot) {
  const auto end = firstFit(game, slot);
  return "Shown: " + nameOf(game.card(slot)) + ". " +
         (end ? fitWords(game.chain, *end) : "It does not fit. ");
}

std::string tutorialBegins() {
  return "The demonstration begins: Next shows one move after the other, Stop ends it. ";
}

std::string tutorialEnds() { return "The demonstration is over. "; }

std::string closingWords() { return "Escape closes the window. "; }

std::string panelWords(const TableState& state) {
  return "Size of the table: " + std::to_string(state.tableSize) +
         ". The arrow keys change it, Enter or Escape closes the panel. ";
}

std::string resultWords(const Game& game) {
  const bool won = game.ending.result == GameResult::Won;
  const std::string why = game.ending.deadlock ? "DEADLOCK! No card fits on either side. "
                          : won                ? "You have laid your last card. "
                                               : "Computer has laid its last card. ";
  return why + "You Have: " + sumWords(game, Side::Player) +
         "Computer Has: " + sumWords(game, Side::Computer) + (won ? "You win. " : "You lose. ");
}

std::string prompt(const Game& game, const TableState& state) {
  if (state.passAwaitsOk) return passWords(state);
  if (state.choiceOpen) return choiceWords(game, state);
  if (state.sizePanelOpen) return panelWords(state);
  if (game.ending.over) return "The game is over. F10 opens the menu: File, New Game. ";
  if (state.demo.busy) return shownCard(game, state.demo.card);
  if (state.tutorial.running) return turnWords(state) + "Enter presses Next, Tab goes to Stop. ";
  return turnPrompt(game, state);
}

}  // namespace mevracard
