#include "simulate/table.h"

#include "store/settings.h"
#include "store/statistics.h"

namespace mevracard::simulate {

Table::Table(const Request& request, std::uint64_t seed)
    : style_(request.player), random_(seed), program_(desktop_) {
  World& world = desktop_.world;
  world.files.emplace(settingsFile, settingsText({1, request.level}, 99));
  world.files.emplace(statisticsFile, emptyStatisticsText());
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
  if (w.state.passAwaitsOk) return desktop_.click(w.about.ok);
  if (computerIsToMove()) return desktop_.tick();
  if (w.state.choiceOpen) {
    const bool left = chooseEnd(style_, random_) == End::LeftBottom;
    return desktop_.click(left ? w.choice.leftBottom : w.choice.rightTop);
  }
  const auto card = chooseCard(w.game, style_, random_);
  if (!card) throw std::logic_error("the player is to move and has no card that fits");
  return desktop_.doubleClick(w.card(*card).frame);
}

}  // namespace mevracard::simulate
