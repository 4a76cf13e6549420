#include "play/table_size.h"

#include <cmath>
#include <limits>

namespace mevracard {

namespace {

/// Multiplies one control after the other by the factor.
class Scaler {
 public:
  explicit Scaler(double factor) : factor_(factor) {}

  void place(Box& box) const {
    scale(box.left);
    scale(box.top);
    scale(box.width);
    scale(box.height);
  }
  template <typename Captioned>
  void placeAndFont(Captioned& box) const {
    place(box);
    scale(box.font.size);
  }
  void line(Line& line) const {
    scale(line.x1);
    scale(line.x2);
    scale(line.y1);
    scale(line.y2);
    border(line.borderWidth);
  }
  /// A width that no longer fits its 16 bits stays as it is.
  /// QUIRK-33: rounded at every step. One would expect lines to grow and shrink with the table;
  /// moving the scroll bar one by one never thins them. Meant.
  void border(std::int16_t& width) const {
    const double product = std::nearbyint(width * factor_);
    if (std::abs(product) <= std::numeric_limits<std::int16_t>::max()) {
      width = static_cast<std::int16_t>(product);
    }
  }

 private:
  void scale(float& value) const { value = static_cast<float>(value * factor_); }

  double factor_;
};

void scaleTable(TableControls& table, const Scaler& by) {
  for (auto& label : table.counterHeadings) by.placeAndFont(label);
  for (auto& label : table.handCaptions) by.placeAndFont(label);
  for (auto& label : table.counters) by.placeAndFont(label);
  for (auto& line : table.leftGuides) by.line(line);
  for (auto& line : table.border) by.line(line);
  for (auto& line : table.rightGuides) by.line(line);
  for (auto& shape : table.markers) by.place(shape);
  by.place(table.centre);
  by.border(table.centre.borderWidth);
  by.place(table.boxes[1]);  // the other one keeps its size
}

void scaleCard(CardControls& card, const Scaler& by) {
  by.place(card.frame);
  by.placeAndFont(card.upper);
  by.placeAndFont(card.lower);
  by.line(card.divider);
  by.place(card.back.ground);
  by.place(card.back.leaf);
  by.line(card.back.stem);
  by.place(card.back.lowerPetal);
  by.place(card.back.leftPetal);
  by.place(card.back.heart);
}

/// But for `keys`, which nobody sees.
void scaleChoice(Choice& choice, const Scaler& by) {
  by.placeAndFont(choice.rightTop);
  by.placeAndFont(choice.leftBottom);
  by.placeAndFont(choice.cancel);
  for (auto& arrow : choice.arrows) by.line(arrow);
}

/// The tutorial and the size panel keep their size.
void scaleControls(MainWindow& w, const Scaler& by) {
  by.place(w.table.whole);
  scaleTable(w.table, by);
  for (CardControls& card : w.cards) scaleCard(card, by);
  scaleChoice(w.choice, by);
  for (Label* label : w.result.labels()) by.placeAndFont(*label);
  by.placeAndFont(w.discard);
  by.placeAndFont(w.status);
}

template <typename Array>
void showAll(Array& controls) {
  for (auto& control : controls) control.visible = true;
}

/// QUIRK-18: shows every control of the table, also one that was hidden before. The player sees the
/// dealt cards behind the first message box, which later deals keep hidden. Meant.
void showTable(MainWindow& w) {
  showAll(w.table.counterHeadings);
  showAll(w.table.handCaptions);
  showAll(w.table.leftGuides);
  showAll(w.table.border);
  showAll(w.table.rightGuides);
  showAll(w.table.counters);
  showAll(w.table.markers);
  w.table.centre.visible = true;
  w.table.boxes[1].visible = true;
  for (CardControls& card : w.cards) {
    card.frame.visible = true;
    card.upper.visible = true;
    card.lower.visible = true;
    card.divider.visible = true;
  }
  w.discard.visible = true;
}

}  // namespace

void rescaleTable(MainWindow& w, double factor) {
  scaleControls(w, Scaler(factor));
  showTable(w);
}

void scrollTableSize(MainWindow& w, int tableSize) {
  GameState& s = w.state;
  w.sizePanel.bar.value = tableSize;
  // Without a size before there is no ratio; the number that stands in its place is the card last
  // played, as for every factor that could not be worked out.
  const double before = s.tableSize;
  rescaleTable(w, before != 0 ? tableSize / before : s.playCard);
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
