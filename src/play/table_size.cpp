#include "play/table_size.h"

#include <array>
#include <cmath>
#include <limits>

#include "game/grid.h"

namespace mevracard {

namespace {

/// Multiplies one control after the other by the factor.
class Scaler {
 public:
  explicit Scaler(double factor) : factor_(factor) {}

  void scale(Box& box) const {
    scale(box.left);
    scale(box.top);
    scale(box.width);
    scale(box.height);
  }
  void scale(Label& label) const { scaleWithFont(label); }
  void scale(Button& button) const { scaleWithFont(button); }
  void scale(Line& line) const {
    scale(line.x1);
    scale(line.x2);
    scale(line.y1);
    scale(line.y2);
    scaleBorder(line.borderWidth);
  }
  /// A width that no longer fits its 16 bits stays as it is.
  /// QUIRK-33: rounded at every step. One would expect lines to grow and shrink with the table;
  /// moving the scroll bar one by one never thins them.
  void scaleBorder(std::int16_t& width) const {
    const double product = std::nearbyint(steady(width * factor_));
    if (std::abs(product) <= std::numeric_limits<std::int16_t>::max()) {
      width = static_cast<std::int16_t>(product);
    }
  }

  /// QUIRK-18: shows the control too, also one that was hidden before. The player sees the dealt
  /// cards behind the first message box, which later deals keep hidden.
  template <typename AnyControl>
  void show(AnyControl& control) const {
    scale(control);
    control.visible = true;
  }
  template <typename AnyControl, std::size_t count>
  void show(std::array<AnyControl, count>& controls) const {
    for (AnyControl& control : controls) show(control);
  }

 private:
  void scale(float& value) const { value = static_cast<float>(value * factor_); }
  template <typename Captioned>
  void scaleWithFont(Captioned& box) const {
    scale(static_cast<Box&>(box));
    scale(box.font.size);
  }

  double factor_;
};

void scaleTable(TableControls& table, const Scaler& by) {
  by.scale(table.whole);
  by.scale(table.panels);
  for (Shape& spare : table.captionSpares) by.scale(spare);
  for (PerSide<Counter>* counters : {&table.cardsLeft, &table.passes}) {
    for (auto& [heading, count] : counters->values) {
      by.show(heading);
      by.show(count);
    }
  }
  by.show(table.handCaptions);
  by.show(table.leftGuides);
  by.show(table.border);
  by.show(table.rightGuides);
  by.show(table.markers);
  by.show(table.centre);
  by.scaleBorder(table.centre.borderWidth);
  by.show(table.boxes[1]);  // the other one keeps its size
}

void scaleCard(CardControls& card, const Scaler& by) {
  by.show(card.frame);
  by.show(card.upper);
  by.show(card.lower);
  by.show(card.divider);
  by.scale(card.back.ground);
  by.scale(card.back.leaf);
  by.scale(card.back.stem);
  by.scale(card.back.lowerPetal);
  by.scale(card.back.leftPetal);
  by.scale(card.back.heart);
}

/// But for `keys`, which nobody sees.
void scaleChoice(Choice& choice, const Scaler& by) {
  by.scale(choice.rightTop);
  by.scale(choice.leftBottom);
  by.scale(choice.cancel);
  for (Line& arrow : choice.arrows) by.scale(arrow);
}

}  // namespace

void rescaleTable(MainWindow& w, double factor) {
  const Scaler by(factor);
  scaleTable(w.table, by);
  for (CardControls& card : w.cards) scaleCard(card, by);
  scaleChoice(w.choice, by);
  for (Label* label : w.result.labels()) by.scale(*label);
  by.scale(w.discard);
  w.state.takesCards = true;  // QUIRK-18: the Discard button shows as well
  by.scale(w.status);
}

void scrollTableSize(MainWindow& w, int tableSize) {
  TableState& s = w.state;
  w.sizePanel.bar.value = tableSize;
  rescaleTable(w, static_cast<double>(tableSize) / s.tableSize);
  s.tableSize = tableSize;
}

void takeTableSize(MainWindow& w, int tableSize) {
  // Before the first deal the table has its design size, and the deal applies the size. Later the
  // table follows at once, or hands and table would be of two sizes.
  if (w.state.newGameAsked && w.state.tableSize != tableSize) {
    scrollTableSize(w, tableSize);
  }
  w.state.tableSize = tableSize;
  w.sizePanel.bar.value = tableSize;
}

}  // namespace mevracard
