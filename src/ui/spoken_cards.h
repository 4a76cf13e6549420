#pragma once

#include <string>

#include "game/game.h"

/// Cards, hands and ends in words, as a player hears of them.
namespace mevracard {

/// "Right/Top".
[[nodiscard]] std::string nameOf(End end);

/// "2-5": a card has one name, however it lies.
[[nodiscard]] std::string nameOf(const Card& card);

/// "2-5, fits the Right/Top end": a card in a hand.
[[nodiscard]] std::string cardInHand(const Game& game, int slot);

/// The computer's cards lie face down.
[[nodiscard]] bool isCovered(const Game& game, Side side);

/// Both hands as they were dealt.
[[nodiscard]] std::string dealtHands(const Game& game);

/// "You lay 1-3 at Right/Top. Computer lays 3-5, 5-6 at Right/Top, 1-1 at Left/Bottom. ": the cards
/// on the table from the `first` one on, in order.
[[nodiscard]] std::string laidCards(const Game& game, int first);

/// "Open numbers: 1 at Right/Top, 0 at Left/Bottom. "
[[nodiscard]] std::string openNumbers(const Chain& chain);

}  // namespace mevracard
