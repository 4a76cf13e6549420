#pragma once

#include "simulate/request.h"
#include "simulate/signature.h"

namespace mevracard::simulate {

/// Figures of one side. The 0-0 of the opening counts as nobody's card.
struct SideFigures {
  long long passes = 0, cards = 0;
};

/// Figures of one game, or of many.
struct Figures {
  long long wins = 0, losses = 0;  ///< of the player
  long long deadlocks = 0;         ///< games that a deadlock decided; each is a win or a loss too
  SideFigures player, computer;
  long long cardsOnTable = 0;

  void add(const Figures& other);
};

/// Plays the game with this number of the request, from the program's start to the result, in a
/// world of its own: neither other games nor the wall clock enter it. Folds every card laid (its
/// slot, the end, the number that it opened) and the result into the signature. Throws
/// std::logic_error if the game does not go on or does not end, or if a watched table is not in
/// order.
[[nodiscard]] Figures playGame(const Request& request, int number, Signature& signature);

/// All games of the request.
[[nodiscard]] Figures playGames(const Request& request, Signature& signature);

}  // namespace mevracard::simulate
