#include "ui/spoken_lists.h"

#include <algorithm>

#include "game/scoring.h"
#include "ui/main_window.h"
#include "ui/spoken_cards.h"
#include "ui/status_text.h"

namespace mevracard {

namespace {

SpokenList handList(MainWindow& w, Side side, const char* name) {
  const Game& game = w.game;
  SpokenList list{name, {}};
  for (const int slot : handOf(side)) {
    if (!game.card(slot).held) continue;
    SpokenItem item{&w.card(slot).frame,
                    isCovered(game, side) ? "face down" : cardInHand(game, slot)};
    item.answersPress = side == Side::Player && !game.ending.over && !w.state.tutorial.running;
    item.selected = side == Side::Player && slot == w.state.selectedCard;
    list.items.push_back(std::move(item));
  }
  return list;
}

std::string placeOfEnd(const Chain& chain, End end) {
  const bool both = chain.endCard[End::RightTop] == chain.endCard[End::LeftBottom];
  return (both ? ", at both ends" : ", at the " + nameOf(end) + " end") + ", open number " +
         std::to_string(chain.openNumber[end]);
}

/// The cards at the ends come first, then those between them from Right/Top to Left/Bottom.
SpokenList tableList(MainWindow& w) {
  const Game& game = w.game;
  SpokenList list{"Table", {}};
  const auto add = [&](int slot, const std::string& place) {
    list.items.push_back({&w.card(slot).frame, nameOf(game.card(slot)) + place});
  };
  if (game.chain.openings == 0) return list;
  const auto first = game.chain.endCard[End::RightTop];
  const auto second = game.chain.endCard[End::LeftBottom];
  if (first) add(*first, placeOfEnd(game.chain, End::RightTop));
  if (second && second != first) add(*second, placeOfEnd(game.chain, End::LeftBottom));
  const auto& laid = game.chain.laid;
  const auto tellInside = [&](const LaidCard& card, End end) {
    if (card.end == end && card.slot != first && card.slot != second) add(card.slot, "");
  };
  std::for_each(laid.rbegin(), laid.rend(),
                [&](const LaidCard& card) { tellInside(card, End::RightTop); });
  for (const LaidCard& card : laid) tellInside(card, End::LeftBottom);
  return list;
}

/// Counters and results under the names that stand beside them.
SpokenList scoreList(MainWindow& w) {
  const Game& game = w.game;
  SpokenList list{"Score", {}};
  const auto add = [&list](Label& label, const std::string& words) {
    list.items.push_back({&label, words});
  };
  const auto addSum = [&](Label& label, const Label& caption, Side side) {
    add(label, caption.caption + " " + std::to_string(leftover(game, side).sum));
  };
  if (game.chain.openings > 0 && !game.ending.over)
    add(w.status, statusText(w.state.announcement, w.state.tutorial.running));
  const auto addCounts = [&](PerSide<Counter>& counters, const PerSide<int>& counts) {
    for (const Side side : {Side::Computer, Side::Player}) {
      const std::string owner = side == Side::Player ? "Your Cards, " : "Computer's Cards, ";
      auto& [heading, count] = counters[side];
      add(count, owner + heading.caption + ": " + std::to_string(counts[side]));
    }
  };
  addCounts(w.table.cardsLeft, game.counts.cardsLeft);
  addCounts(w.table.passes, game.counts.passes);
  if (!game.ending.over) return list;
  if (game.ending.deadlock) add(w.result.deadlock, "DEADLOCK!");
  addSum(w.result.yourSum, w.result.youHave, Side::Player);
  addSum(w.result.computersSum, w.result.computerHas, Side::Computer);
  add(w.result.verdict, game.ending.result == GameResult::Won ? "You win" : "You lose");
  return list;
}

}  // namespace

std::vector<SpokenList> spokenLists(MainWindow& w) {
  return {handList(w, Side::Player, "Your cards"), handList(w, Side::Computer, "Computer's cards"),
          tableList(w), scoreList(w)};
}

}  // namespace mevracard
