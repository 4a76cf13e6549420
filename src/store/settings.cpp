#include "store/settings.h"

#include "game/leading_number.h"

namespace mevracard {

namespace {

std::string fieldText(std::optional<int> level) { return level ? std::to_string(*level) : ""; }

/// QUIRK-25: anything but "1" is level 2, a missing character included. One would expect bad fields
/// to be refused; the player finds level 2 chosen.
int levelAt(std::string_view text, std::size_t index) {
  return index < text.size() && text[index] == '1' ? 1 : 2;
}

}  // namespace

std::string settingsText(const SavedLevels& levels, int tableSize) {
  return fieldText(levels.player) + "/" + fieldText(levels.computer) + "/" +
         std::to_string(tableSize) + "\r\n";
}

std::string defaultSettingsText() { return settingsText({1, 1}, largestTableSize); }

std::optional<SavedSettings> parseSettings(std::string_view text) {
  // QUIRK-26: two digits are read, whatever follows. One would expect three to be refused; 855
  // counts as 85, and 100 as 10, which is no size.
  const auto firstSix = text.substr(0, 6);
  const auto size = firstSix.substr(firstSix.size() < 2 ? 0 : firstSix.size() - 2);
  const double tableSize = leadingNumber(size);
  if (tableSize < smallestTableSize || tableSize > largestTableSize) return std::nullopt;
  return SavedSettings{levelAt(text, 0), levelAt(text, 2), static_cast<int>(tableSize)};
}

}  // namespace mevracard
