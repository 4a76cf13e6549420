#include "ui/spoken_cards.h"

#include <algorithm>

#include "game/rules.h"

namespace mevracard {

namespace {

std::string dealtHand(const Game& game, Side side) {
  if (isCovered(game, side)) return "face down";
  std::string names;
  for (const int slot : handOf(side))
    names += (names.empty() ? "" : ", ") + nameOf(game.card(slot));
  return names;
}

}  // namespace

std::string nameOf(End end) { return end == End::RightTop ? "Right/Top" : "Left/Bottom"; }

std::string nameOf(const Card& card) {
  const auto [lower, higher] = std::minmax(card.upper, card.lower);
  return std::to_string(lower) + "-" + std::to_string(higher);
}

std::string cardInHand(const Game& game, int slot) {
  std::string name = nameOf(game.card(slot));
  if (game.chain.openings == 0 || game.ending.over) return name;
  const bool rightTop = fitsAt(game, slot, End::RightTop);
  const bool leftBottom = fitsAt(game, slot, End::LeftBottom);
  if (!rightTop && !leftBottom) return name + ", does not fit";
  if (rightTop && leftBottom) return name + ", fits both ends";
  return name + ", fits the " + nameOf(rightTop ? End::RightTop : End::LeftBottom) + " end";
}

bool isCovered(const Game& game, Side side) {
  return side == Side::Computer && game.levels.player != 1 && !game.ending.over;
}

std::string dealtHands(const Game& game) {
  return "Your cards: " + dealtHand(game, Side::Player) +
         ". Computer's cards: " + dealtHand(game, Side::Computer) + ". ";
}

std::string laidCards(const Game& game, int first) {
  const auto& laid = game.chain.laid;
  // The opening's card lies at no end.
  const auto place = [&](std::size_t i) { return i == 0 ? "" : " at " + nameOf(laid[i].end); };
  const auto begin = static_cast<std::size_t>(first);
  std::string words;
  for (std::size_t i = begin; i < laid.size(); ++i) {
    const int slot = laid[i].slot;
    const bool sideGoesOn = i > begin && ownerOf(laid[i - 1].slot) == ownerOf(slot);
    const bool endGoesOn = sideGoesOn && place(i - 1) == place(i);
    if (i > begin && !endGoesOn) words += place(i - 1);
    if (i > begin) words += sideGoesOn ? ", " : ". ";
    if (!sideGoesOn) words += ownerOf(slot) == Side::Player ? "You lay " : "Computer lays ";
    words += nameOf(game.card(slot));
  }
  return words.empty() ? words : words + place(laid.size() - 1) + ". ";
}

std::string openNumbers(const Chain& chain) {
  return "Open numbers: " + std::to_string(chain.openNumber[End::RightTop]) + " at " +
         nameOf(End::RightTop) + ", " + std::to_string(chain.openNumber[End::LeftBottom]) + " at " +
         nameOf(End::LeftBottom) + ". ";
}

}  // namespace mevracard
