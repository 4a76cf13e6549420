#pragma once

namespace mevracard {

/// A rectangle of whole dots.
struct Dots {
  int left = 0, top = 0, width = 0, height = 0;

  bool operator==(const Dots&) const = default;

  /// The first dot beyond it.
  [[nodiscard]] int right() const { return left + width; }
  [[nodiscard]] int bottom() const { return top + height; }
  [[nodiscard]] bool empty() const { return width <= 0 || height <= 0; }
  /// With so many dots more on each side.
  [[nodiscard]] Dots grown(int margin) const { return grown(margin, margin); }
  [[nodiscard]] Dots grown(int sides, int ends) const;
  [[nodiscard]] bool holds(int x, int y) const;
  /// Nothing holds or meets what is empty.
  [[nodiscard]] bool holds(const Dots& other) const;
  [[nodiscard]] bool meets(const Dots& other) const;
  /// What it has in common with another; empty if that is nothing.
  [[nodiscard]] Dots within(const Dots& other) const;
  /// The smallest that holds both; what is empty counts for nothing.
  [[nodiscard]] Dots joined(const Dots& other) const;
  /// The largest piece of it that the other one does not touch.
  [[nodiscard]] Dots beside(const Dots& other) const;
};

}  // namespace mevracard
