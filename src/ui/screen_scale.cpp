#include "ui/screen_scale.h"

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

void scaleTable(MainWindow& w, const Scaler& by) {
  for (auto& label : w.akhir) by.placeAndFont(label);
  for (auto& label : w.Label1) by.placeAndFont(label);
  for (auto& label : w.Label7) by.placeAndFont(label);
  for (auto& line : w.linec) by.line(line);
  for (auto& line : w.Line2) by.line(line);
  for (auto& line : w.Line3) by.line(line);
  for (auto& label : w.sisa) by.placeAndFont(label);
  for (auto& shape : w.hubung) by.place(shape);
}

void scaleCards(MainWindow& w, const Scaler& by) {
  for (std::size_t i = 0; i < cardCount; ++i) {
    by.line(w.ln[i]);
    by.place(w.luar1[i]);
    by.place(w.luar2[i]);
    by.line(w.luar3[i]);
    by.place(w.luar4[i]);
    by.place(w.luar5[i]);
    by.place(w.luar6[i]);
    by.place(w.k[i]);
    by.placeAndFont(w.a[i]);
    by.placeAndFont(w.b[i]);
  }
}

/// The tutorial, the screen-size panel, `hilang` and `kotak(0)` keep their size.
void scaleSingles(MainWindow& w, const Scaler& by) {
  by.placeAndFont(w.kanan);
  by.placeAndFont(w.kiri);
  by.place(w.kjumlah);
  by.border(w.kjumlah.borderWidth);
  by.place(w.kotak[1]);
  by.placeAndFont(w.mulai);
  by.placeAndFont(w.canc);
  by.line(w.panah1);
  by.line(w.panah2);
  by.line(w.panah3);
  by.placeAndFont(w.tanda);
}

template <typename Array>
void showAll(Array& controls) {
  for (auto& control : controls) control.visible = true;
}

/// QUIRK-18: shows every control of the table, also one that was hidden before. The player sees the
/// dealt cards behind the first message box, which later deals keep hidden. Meant.
void showTable(MainWindow& w) {
  showAll(w.Label1);
  showAll(w.Label7);
  showAll(w.linec);
  showAll(w.Line2);
  showAll(w.Line3);
  showAll(w.ln);
  showAll(w.sisa);
  showAll(w.k);
  showAll(w.a);
  showAll(w.b);
  showAll(w.hubung);
  w.kjumlah.visible = true;
  w.kotak[1].visible = true;
  w.mulai.visible = true;
}

}  // namespace

void ScreenScale(MainWindow& w, double factor) {
  // Nothing is presented before the end, so the table needs no hiding while it is moved.
  const Scaler by(factor);
  scaleTable(w, by);
  scaleCards(w, by);
  scaleSingles(w, by);
  showTable(w);
}

void scrctrl_Change(MainWindow& w) {
  GameState& s = w.state;
  const double position = w.scrctrl.value;
  // Without a size before there is no ratio; the number that stands in its place is the card last
  // played, as for every factor that could not be worked out.
  ScreenScale(w, s.screenValue != 0 ? position / s.screenValue : s.playCard);
  s.screenValue = w.scrctrl.value;
}

void takeSavedScreenValue(MainWindow& w, int screenValue) {
  const bool tableIsScaled = w.state.firstDealDone.value_or(0) != 0;
  // Before the first deal the table has its design size, and the deal applies the size. Later the
  // table follows at once, or hands and table would be of two sizes.
  if (!tableIsScaled) w.state.screenValue = screenValue;
  if (w.scrctrl.value == screenValue && w.state.screenValue == screenValue) return;
  w.scrctrl.value = screenValue;
  scrctrl_Change(w);
}

}  // namespace mevracard
