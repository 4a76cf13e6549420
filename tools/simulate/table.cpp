#include "simulate/table.h"

#include "store/statistics.h"
#include "ui/choice.h"

namespace mevracard::simulate {

Table::Table(const Request& request, std::uint64_t seed)
    : style_(request.player), random_(seed), program_(desktop_) {
  World& world = desktop_.world;
  world.files.emplace(settingsFile, settingsText({"1", std::to_string(request.level)}, 99));
  world.files.emplace(statisticsFile, emptyRecordText());
  // The deal draws once a card, the computer once a turn in which it lays one. All of it comes from
  // the seed, so that date and clock do not matter.
  for (int n = 0; n < cardCount + handSize; ++n) world.draws.push_back(random_.fraction());
  program_.start();
}

void Table::goOn() {
  if (const Attempt attempt = next(); !attempt) throw std::logic_error(attempt.why());
}

Attempt Table::next() {
  MainWindow& w = window();
  if (w.authormevra.ctrcom.visible) return desktop_.click(w.authormevra.ctrcom);
  if (computerIsToMove()) return desktop_.tick();
  if (choiceIsOpen(w)) {
    return desktop_.click(chooseEnd(style_, random_) == End::LeftBottom ? w.kiri : w.kanan);
  }
  const auto card = chooseCard(w.state, style_, random_);
  if (!card) throw std::logic_error("the player is to move and has no card that fits");
  return desktop_.doubleClick(w.k[static_cast<std::size_t>(*card)]);
}

}  // namespace mevracard::simulate
