#pragma once

#include <array>
#include <numeric>
#include <span>

/// The cards, and who and what they belong to.
namespace mevracard {

constexpr int cardCount = 28;
constexpr int handSize = 14;  ///< slots 0 to 13 are the player's, 14 to 27 the computer's

/// The two ends of the chain. Right/Top grows up and right, Left/Bottom down and left.
enum class End { RightTop, LeftBottom };
enum class Side { Computer, Player };

/// One value for each end, or for each side.
template <typename Key, typename Value>
struct PerKey {
  std::array<Value, 2> values{};

  [[nodiscard]] Value& operator[](Key key) { return values[static_cast<std::size_t>(key)]; }
  [[nodiscard]] const Value& operator[](Key key) const {
    return values[static_cast<std::size_t>(key)];
  }
  bool operator==(const PerKey&) const = default;
};
template <typename Value>
using PerEnd = PerKey<End, Value>;
template <typename Value>
using PerSide = PerKey<Side, Value>;

/// The slots of the cards in rising order.
inline constexpr auto allSlots = [] {
  std::array<int, cardCount> all{};
  std::iota(all.begin(), all.end(), 0);
  return all;
}();

/// The slots that a side's cards keep for the whole game.
[[nodiscard]] constexpr std::span<const int, handSize> handOf(Side side) {
  constexpr std::span all(allSlots);
  return side == Side::Player ? all.first<handSize>() : all.last<handSize>();
}
[[nodiscard]] constexpr Side ownerOf(int slot) {
  return slot < handSize ? Side::Player : Side::Computer;
}

/// A card with its numbers, 0 to 6, as it lies: a card is turned when it is laid.
struct Card {
  int upper = 0, lower = 0;
  bool held = false;  ///< in its owner's hand, else on the table

  [[nodiscard]] bool bears(int number) const { return upper == number || lower == number; }
  [[nodiscard]] bool isDouble() const { return upper == lower; }
  [[nodiscard]] int sum() const { return upper + lower; }
  /// Beside a number that the card bears.
  [[nodiscard]] int otherThan(int number) const { return upper == number ? lower : upper; }
};

}  // namespace mevracard
