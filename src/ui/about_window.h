#pragma once

#include <array>
#include <string_view>

#include "platform/form.h"

namespace mevracard {

inline constexpr std::string_view homepageAddress = "https://mevracard.example/";
inline constexpr std::string_view creditsLine =
    "Zub MevraCard, a game of dominoes.  Made by the Zub MevraCard developers.";

/// The About window, which is also the tips window. All its parts keep their design places.
struct AboutWindow {
  AboutWindow();
  AboutWindow(const AboutWindow&) = delete;
  AboutWindow& operator=(const AboutWindow&) = delete;

  Form form;
  Label heading;
  Label link;  ///< to the homepage
  Label tip;
  Button ok;  ///< shown only after a pass of the player

  // The emblem: four lines and the base line under them, two cards, a round apex.
  std::array<Line, 5> triangle;
  std::array<Shape, 2> cards;
  std::array<Label, 4> numbers;
  Shape apex;
};

}  // namespace mevracard
