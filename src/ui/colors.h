#pragma once

#include "platform/control.h"

/// The colours of the windows, by the names that the design gives them.
namespace mevracard {

inline constexpr Color handColour{192, 255, 192};   ///< window, card faces and number labels
inline constexpr Color selectionColour{255, 0, 0};  ///< a selected or pointed-at number
inline constexpr Color black{0, 0, 0};
inline constexpr Color white{255, 255, 255};
inline constexpr Color paleGreen{128, 255, 128};
inline constexpr Color teal{0, 192, 192};
inline constexpr Color pink{255, 128, 255};
inline constexpr Color darkGreen{0, 128, 0};
inline constexpr Color darkBlue{0, 0, 192};
inline constexpr Color blue{0, 0, 255};
inline constexpr Color lightBlue{192, 192, 255};
inline constexpr Color lightOrange{255, 224, 192};
inline constexpr Color orange{255, 192, 128};
inline constexpr Color salmon{255, 128, 128};
inline constexpr Color darkRed{192, 0, 0};
inline constexpr Color red{255, 0, 0};
inline constexpr Color olive{192, 192, 0};
inline constexpr Color brown{192, 64, 0};
inline constexpr Color yellow{255, 255, 0};
inline constexpr Color emblemBlue{128, 128, 255};
inline constexpr Color activeTitleBar{0, 84, 166};
inline constexpr Color buttonGreen{0, 255, 0};
inline constexpr Color panelGrey{240, 240, 240};

}  // namespace mevracard
