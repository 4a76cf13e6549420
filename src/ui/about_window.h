#pragma once

#include <array>
#include <string_view>

#include "platform/control.h"

namespace mevracard {

inline constexpr std::string_view homepageAddress = "https://mevracard.example/";

/// The About window, which is also the tips window. All its parts keep their design places.
struct AboutWindow {
  AboutWindow();
  AboutWindow(const AboutWindow&) = delete;
  AboutWindow& operator=(const AboutWindow&) = delete;

  Form form;
  Label mainh;       ///< heading
  Label Label1;      ///< the homepage link
  Label additional;  ///< body text of the tips
  Button ctrcom;     ///< OK, shown only after a pass of the player

  std::array<Line, 5> triangle;  ///< the emblem: four lines and the base line under them
  std::array<Shape, 2> cards;
  std::array<Label, 4> numbers;
  Shape apex;
};

struct MainWindow;

/// Menu About: shows the window with the credits.
void author_Click(MainWindow& w);
/// Menu Go to Homepage, and the link of the About window. An address that cannot be opened is a
/// PlatformError.
void go_Click(MainWindow& w);
void Label1_Click(MainWindow& w);

/// Shows the window with the tips heading and the current tip text.
void showTips(MainWindow& w);

}  // namespace mevracard
