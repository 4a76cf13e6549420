#include "ui/spoken_cards.h"

#include <algorithm>

#include "game/rules.h"

namespace mevracard {

namespace {

std::string dealtHand(const GameState& s, Side side) {
  if (isCovered(s, side)) return "face down";
  std::string names;
  for (const int slot : handOf(side)) names += (names.empty() ? "" : ", ") + nameOf(s.card(slot));
  return names;
}

}  // namespace

std::string nameOf(End end) { return end == End::RightTop ? "Right/Top" : "Left/Bottom"; }

std::string nameOf(const Card& card) {
  const auto [lower, higher] = std::minmax(card.upper, card.lower);
  return std::to_string(lower) + "-" + std::to_string(higher);
}

std::string cardInHand(const GameState& s, int slot) {
  std::string name = nameOf(s.card(slot));
  if (s.openings == 0 || s.gameOver) return name;
  const bool rightTop = fitsAt(s, slot, End::RightTop);
  const bool leftBottom = fitsAt(s, slot, End::LeftBottom);
  if (!rightTop && !leftBottom) return name + ", does not fit";
  if (rightTop && leftBottom) return name + ", fits both ends";
  return name + ", fits the " + nameOf(rightTop ? End::RightTop : End::LeftBottom) + " end";
}

bool isCovered(const GameState& s, Side side) {
  return side == Side::Computer && s.playerLevel != 1 && !s.gameOver;
}

std::string dealtHands(const GameState& s) {
  return "Your cards: " + dealtHand(s, Side::Player) +
         ". Computer's cards: " + dealtHand(s, Side::Computer) + ". ";
}

std::string laidCards(const GameState& s, int first) {
  const auto laid = s.laidCards();
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
    words += nameOf(s.card(slot));
  }
  return words.empty() ? words : words + place(laid.size() - 1) + ". ";
}

std::string openNumbers(const GameState& s) {
  return "Open numbers: " + std::to_string(s.openNumber[End::RightTop]) + " at " +
         nameOf(End::RightTop) + ", " + std::to_string(s.openNumber[End::LeftBottom]) + " at " +
         nameOf(End::LeftBottom) + ". ";
}

}  // namespace mevracard
